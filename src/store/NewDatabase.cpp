#include "store/NewDatabase.h"
#include "platform/core/Files.h"

#include <QFileInfo>

#include "store/Connection.h"
#include "store/Draft.h"
#include "store/schema.h"
#include "store/Version.h"
#include "store/WordList.h"

void WriteEmptyTables(Connection &connection, const QString &doing)
{
    for (const schema::Table &table : schema::tables()) {
        connection.run(table.create, doing);
        connection.run(table.indexes, doing);
    }
    const QString marks = QStringLiteral("PRAGMA application_id = %1; PRAGMA user_version = %2")
                              .arg(schema::applicationId)
                              .arg(schema::userVersion);
    connection.run(marks.toLatin1().constData(), doing);
}

namespace {

void writeRows(const std::shared_ptr<Connection> &connection, const QString &doing)
{
    Statement config(
        connection,
        QStringLiteral("INSERT INTO CONFIG (default_salt, default_fresh, user_fieldname1, user_fieldname2, db_version) "
                       "VALUES (1, 0, 'User Field 1', 'User field 2', ?)"),
        doing);
    config.bind({presentDatabaseVersion});
    config.run();
    const auto addWord = [&](const char *name, const char *type) {
        Statement add(connection, QStringLiteral("INSERT INTO ANIMALLIST (animalname, AnimalType) VALUES (?, ?)"),
                      doing, Statement::Use::Again);
        add.bind({QString::fromUtf8(name), QString::fromLatin1(type)});
        add.run();
    };
    for (const Word &word : upgradeWords())
        addWord(word.name, word.type);
    for (const char *animal : marineAnimals())
        addWord(animal, "2");
}

} // namespace

void CreateDatabase(const QString &fileName)
{
    if (const QString there = FindFile(fileName); !there.isEmpty())
        throwExists(there);
    const QString path = QFileInfo(fileName).absoluteFilePath();
    const QString doing = QStringLiteral("Making the database:\n%1").arg(path);
    Draft draft(path, doing);
    const auto connection = std::make_shared<Connection>(draft.path());
    connection->run("PRAGMA journal_mode = DELETE; PRAGMA synchronous = EXTRA; BEGIN", doing);
    WriteEmptyTables(*connection, doing);
    writeRows(connection, doing);
    connection->run("COMMIT", doing);
    connection->close();
    draft.giveName();
}
