#include "store/Version.h"

#include "store/Database.h"

QString ReadDatabaseVersion(Database &database)
{
    QString version = QStringLiteral("0.0 ");
    for (const FieldDef &field : database.Fields(QStringLiteral("config"))) {
        if (field.Name != u"db_version")
            continue;
        Recordset config = database.OpenRecordset(QStringLiteral("SELECT db_version FROM CONFIG "));
        config.MoveFirst();
        version = config[QStringLiteral("db_version")].text();
        config.Close();
    }
    return version;
}

int NumberOfVersion(const QString &version)
{
    if (version == u"0.0 ")
        return 10;
    const QString trimmed = version.trimmed();
    return trimmed == u"1.1" ? 11 : trimmed == u"2.0" ? 20 : 0;
}
