// An import, whose first change makes the copy of the day, and the restoring of a copy, killed before each call that
// changes a file: every database in the folder is whole at any time, and the next try comes through.
// --kills=all kills at every call.
#include "CommandFixture.h"
#include "oldengine/KilledAtCall.h"

struct KilledCopies : CommandTest
{
    KilledCopies()
    {
        qputenv("XDG_CONFIG_HOME", path("none").toLocal8Bit());
        change("INSERT INTO TANKLST (tankname, tankid) VALUES ('Copy', 'id')");
        m_copy = contentOf(folder.path())["OM.MDB"];
        change("UPDATE TANKLST SET tankname = 'Now'");
        m_now = contentOf(folder.path())["OM.MDB"];
    }

    /// A folder with a tank "Now", and ten copies with a tank "Copy".
    void prepare()
    {
        QDir(folder.path()).removeRecursively();
        QDir().mkpath(path("copies"));
        writeFile(path(), m_now);
        for (int day = 11; day <= 20; ++day)
            writeFile(path(QString("copies/OM-2026-02-%1.MDB").arg(day)), m_copy);
        writeFile(path("tanks.csv"), "tank,size\nNew,5\nOther,5\n");
    }
    /// The tanks of a database, which must be whole.
    QString tanksIn(const QString &name)
    {
        EXPECT_EQ(OtherProgram(path(name)).run("PRAGMA integrity_check"), "ok") << name.toStdString();
        return OtherProgram(path(name)).run("SELECT group_concat(tankname) FROM (SELECT * FROM TANKLST ORDER BY 1)");
    }
    /// All copies must be whole. Returns the name of the one that was made today, if there is one.
    QString copyOfToday()
    {
        QString today;
        const QStringList copies = QDir(path("copies"), "*.MDB").entryList(QDir::Files);
        for (const QString &copy : copies)
            if (copy.contains("2026-02-")) {
                EXPECT_EQ(contentOf(path("copies"))[copy], m_copy) << copy.toStdString();
            } else {
                today = "copies/" + copy;
                EXPECT_EQ(tanksIn(today), "Now");
            }
        EXPECT_TRUE(copies.size() == 10 || copies.size() == 11) << copies.join(' ').toStdString();
        return today;
    }

    QByteArray m_copy, m_now;
};

TEST_F(KilledCopies, EveryDatabaseIsWholeAndTheNextTryComesThrough)
{
    const struct
    {
        const char *verb;
        QString argument;
        QString done;     ///< the tanks afterwards
        QString keepsNow; ///< the database that then has the tank "Now"; empty: the copy of today
    } works[] = {{"import", path("tanks.csv"), "New,Now,Other", ""},
                 {"restore", "2026-02-17", "Copy", "OM-before-restore.MDB"}};
    const int stride = KillStride(7);
    for (const auto &work : works) {
        const QStringList command{OMK_DATA_PROGRAM, "--folder", folder.path(), work.verb, work.argument};
        const auto keeper = [&] {
            const QString today = copyOfToday();
            return work.keepsNow.isEmpty() ? today : work.keepsNow;
        };
        int kills = 0, done = 0;
        for (int call = 0; !HasFailure(); call += stride, ++kills) {
            SCOPED_TRACE(std::string(work.verb) + ' ' + std::to_string(call));
            prepare();
            if (!KillAtCall(call, folder.path(), command))
                break;
            const bool isDone = tanksIn("OM.MDB") == work.done;
            const QString hasNow = keeper();
            EXPECT_EQ(tanksIn(isDone ? hasNow : "OM.MDB"), "Now");
            done += isDone;
            KillAtCall(1000, folder.path(), command);
            EXPECT_EQ(tanksIn("OM.MDB") + ' ' + tanksIn(keeper()), work.done + " Now");
            for (const QString &each : {folder.path(), path("copies")})
                EXPECT_EQ(QDir(each).entryList({"*new-*"}, QDir::Files | QDir::Hidden), QStringList());
        }
        EXPECT_GT(kills * stride, 15);
        std::printf("| %s, killed at each write | %d, %d of them when all was done |\n", work.verb, kills, done);
    }
}
