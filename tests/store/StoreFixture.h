// What the tests of the store share: a new database in a folder of its own, scripted doors, a second connection that
// acts as another program, and functions that return the failure of a piece of work.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "store/Database.h"
#include "store/NewDatabase.h"
#include "support/Failures.h"
#include "support/ScriptedDoors.h"
#include "support/TestFiles.h"

/// Runs `work` in a child process and returns the signal that ended it; 0 if it finished, which it must do without a
/// failure.
inline int signalThatEnds(const std::function<void()> &work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const auto failure = failureOf(work);
        if (failure)
            std::fprintf(stderr, "%s\n", failure->what());
        ::_exit(!failure && !testing::Test::HasFailure() ? 0 : 3);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0) << "the child failed";
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

/// The connection of another program: runs statements and returns one value as text.
class OtherProgram
{
public:
    explicit OtherProgram(const QString &path) { sqlite3_open(QFile::encodeName(path).constData(), &m_handle); }
    ~OtherProgram() { sqlite3_close(m_handle); }
    OtherProgram(const OtherProgram &) = delete;
    OtherProgram &operator=(const OtherProgram &) = delete;
    /// Returns the first value of the last row, or "error" if the engine refuses the statement.
    QString run(const QString &sql)
    {
        QString result;
        const auto take = [](void *out, int, char **values, char **) {
            *static_cast<QString *>(out) = QString::fromUtf8(values[0]);
            return 0;
        };
        const int code = sqlite3_exec(m_handle, sql.toUtf8().constData(), take, &result, nullptr);
        return code == SQLITE_OK ? result : QStringLiteral("error");
    }

private:
    sqlite3 *m_handle = nullptr;
};

struct StoreTest : testing::Test
{
    StoreTest()
    {
        CreateDatabase(path());
        open();
    }

    QString path(const QString &name = QStringLiteral("OM.MDB")) const { return folder.filePath(name); }
    void open() { db = Database::OpenDatabase(path()); }
    QString asked(const QString &sql) { return OtherProgram(path()).run(sql); }
    qsizetype count(const QString &table) { return db->OpenRecordset("SELECT * FROM " + table).RecordCount(); }
    /// Adds a water test of tank "T" at 9 o'clock on that day of January 2003, with a pH of half more than the day.
    void addWater(int day)
    {
        db->Execute("INSERT INTO WATERLOG (tankname, logdate, logtime, ph) VALUES ('T', ?, '09:00:00', ?)",
                    {QDate(2003, 1, day), day + 0.5});
    }

    QTemporaryDir folder;
    ScriptedDoors doors;
    std::unique_ptr<Database> db;
};
