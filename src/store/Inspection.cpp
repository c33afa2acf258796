#include "store/Inspection.h"

#include <algorithm>

#include <QTemporaryDir>

#include "platform/core/RuntimeFailure.h"
#include "store/Database.h"
#include "store/NewDatabase.h"

namespace {

qint64 countOf(Database &database, const QString &sql)
{
    return qint64(database.OpenForwardOnly(sql).value(QStringLiteral("n")).toDouble());
}

QStringList indexesOf(Database &database)
{
    QStringList names;
    for (RowStream rows = database.OpenForwardOnly(QStringLiteral("SELECT upper(name) AS name FROM sqlite_master WHERE "
                                                                  "type = 'index'"));
         !rows.EOF_(); rows.MoveNext())
        names << rows.text(QStringLiteral("name"));
    return names;
}

void compareColumns(const QString &table, const std::vector<FieldDef> &wanted, const std::vector<FieldDef> &there,
                    QStringList &faults)
{
    for (const FieldDef &column : wanted) {
        const auto found = std::ranges::find_if(
            there, [&](const FieldDef &field) { return field.Name.compare(column.Name, Qt::CaseInsensitive) == 0; });
        if (found == there.end())
            faults << QStringLiteral("The table %1 has no column %2.").arg(table, column.Name);
        else if (found->Type != column.Type)
            faults << QStringLiteral("The column %1 of the table %2 is of another type.").arg(column.Name, table);
    }
}

} // namespace

FileContent CountContent(Database &database)
{
    return {countOf(database, QStringLiteral("SELECT count(*) AS n FROM TANKLST")),
            countOf(database, QStringLiteral("SELECT (SELECT count(*) FROM WATERLOG) + (SELECT "
                                             "count(*) FROM LIVESTOCK) "
                                             "+ (SELECT count(*) FROM MAINTLOG) AS n")),
            countOf(database, QStringLiteral("SELECT count(*) AS n FROM MAINTSCHED"))};
}

QStringList FindDamage(Database &database)
{
    QStringList damage;
    try {
        for (RowStream rows = database.OpenForwardOnly(QStringLiteral("PRAGMA integrity_check(100)")); !rows.EOF_();
             rows.MoveNext())
            damage << rows.text(QStringLiteral("integrity_check"));
    } catch (const RuntimeFailure &failure) {
        if (failure.number() != Failure::UnrecognizedFormat)
            throw;
        damage << failure.description();
    }
    damage.removeAll(QStringLiteral("ok"));
    return damage;
}

QStringList FindSchemaFaults(Database &database)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("new.MDB"));
    CreateDatabase(path);
    const auto model = Database::OpenDatabase(path);
    QStringList faults;
    for (const QString &table : model->TableDefs())
        compareColumns(table, model->Fields(table), database.Fields(table), faults);
    const QStringList there = indexesOf(database);
    for (const QString &index : indexesOf(*model))
        if (!there.contains(index))
            faults << QStringLiteral("The index %1 is missing, so the same entry "
                                     "could be stored twice.")
                          .arg(index);
    return faults;
}
