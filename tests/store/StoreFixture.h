// What the tests of the store share: a new database in a folder of its own, the clock and boxes of a script, a second
// connection as another program would have it, and the failure that a piece of work ends in.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "platform/RuntimeFailure.h"
#include "store/Database.h"
#include "support/ScriptedDoors.h"

struct sqlite3;

class StoreTest : public ::testing::Test
{
protected:
    StoreTest();

    QString path(const QString &name = QStringLiteral("OM.MDB")) const { return folder.filePath(name); }
    void open() { db = Database::OpenDatabase(path()); }
    /// Opens the table's recordset for adding and sets columns of the buffer.
    Recordset adding(const QString &table, const std::map<QString, Value> &columns);
    void add(const QString &table, const std::map<QString, Value> &columns) { adding(table, columns).Update(); }
    /// A water test of tank "T" at 9 o'clock of a day of January 2003.
    void addWater(int day, double ph);
    qsizetype count(const QString &table) { return db->OpenRecordset("SELECT * FROM " + table).RecordCount(); }

    QTemporaryDir folder;
    ScriptedDoors doors;
    std::unique_ptr<Database> db;
};

/// Another program's connection: runs statements at once, and asks for one value as text.
class OtherProgram
{
public:
    explicit OtherProgram(const QString &path);
    ~OtherProgram();
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;
    /// The first value of the first row; "error" where the engine refuses.
    QString run(const char *sql);

private:
    sqlite3 *m_handle = nullptr;
};

/// The failure that the work ends in; nothing if it ends well.
std::optional<RuntimeFailure> failureOf(const std::function<void()> &work);
/// Its number; 0 if it ends well.
int numberOf(const std::function<void()> &work);
void writeFile(const QString &path, const QByteArray &bytes);
/// Names and contents of all files of a folder.
std::map<QString, QByteArray> contentOf(const QString &folder);
