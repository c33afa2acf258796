// An import, whose first change makes the copy of the day, and the restoring of a copy, killed before each call that
// changes a file: every database in the folder is whole at any time, and the next try comes through.
// --kills=all kills at every call.
#include "CommandFixture.h"
#include "oldengine/KilledAtCall.h"

struct KilledCopies : CommandTest
{
    KilledCopies()
    {
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
    void expectWholeCopies()
    {
        const auto copies = contentOf(path("copies"));
        for (int day = 12; day <= 20; ++day) // the oldest makes room for the copy of the day
            EXPECT_EQ(copies.at(QString("OM-2026-02-%1.MDB").arg(day)), m_copy);
        if (copies.contains("OM-2026-03-14.MDB")) {
            EXPECT_EQ(tanksIn("copies/OM-2026-03-14.MDB"), "Now");
        } else {
            EXPECT_EQ(copies.at("OM-2026-02-11.MDB"), m_copy);
        }
    }

    QByteArray m_copy, m_now;
};

TEST_F(KilledCopies, EveryDatabaseIsWholeAndTheNextTryComesThrough)
{
    const struct
    {
        QStringList command;
        QString done;     ///< the tanks afterwards
        QString keepsNow; ///< the database that then has the tank "Now"
    } works[] = {{{"import", path("tanks.csv")}, "New,Now,Other", "copies/OM-2026-03-14.MDB"},
                 {{"restore", "2026-02-17"}, "Copy", "OM-before-restore.MDB"}};
    const int stride = KillStride(7);
    for (const auto &work : works) {
        int kills = 0, done = 0;
        for (int call = 0; !HasFailure(); call += stride, ++kills) {
            SCOPED_TRACE(work.command[0].toStdString() + ' ' + std::to_string(call));
            prepare();
            if (!KillAtCall(call, folder.path(), [&] { run(work.command); }))
                break;
            const bool isDone = tanksIn("OM.MDB") == work.done;
            EXPECT_EQ(tanksIn(isDone ? work.keepsNow : "OM.MDB"), "Now");
            done += isDone;
            expectWholeCopies();
            run(work.command);
            EXPECT_EQ(tanksIn("OM.MDB") + ' ' + tanksIn(work.keepsNow), work.done + " Now");
            expectWholeCopies();
            for (const QString &each : {folder.path(), path("copies")})
                EXPECT_EQ(QDir(each).entryList({"*new-*"}, QDir::Files | QDir::Hidden), QStringList());
        }
        EXPECT_GT(kills * stride, 15);
        std::printf("| %s, killed at each write | %d, %d of them when all was done |\n", qPrintable(work.command[0]),
                    kills, done);
    }
}
