// The first change of a day, which makes the copy of the day, an import and the restoring of a copy, killed before each
// call that changes a file: every database in the folder is whole at any time, and the next try comes through.
// --kills=all kills at every call.
#include <QRegularExpression>

#include "CommandFixture.h"
#include "oldengine/KilledAtCall.h"

struct KilledCopies : CommandTest
{
    KilledCopies()
    {
        ::setenv("ASAN_OPTIONS", "detect_leaks=0", 1); // the search does not work in a process that is watched
        ::setenv("XDG_CONFIG_HOME", qPrintable(path("none")), 1);
    }
    ~KilledCopies() override
    {
        ::unsetenv("ASAN_OPTIONS");
        ::unsetenv("XDG_CONFIG_HOME");
    }

    /// A folder with a tank "Now", and ten copies, each with a tank of its own.
    void prepare()
    {
        QDir(folder.path()).removeRecursively();
        QDir().mkpath(path("copies"));
        writeFile(path(), m_database);
        change("INSERT INTO TANKLST (tankname, tankid) VALUES ('Now', 'id')");
        writeFile(path("tanks.csv"), "tank,size\nNew,5\nOther,5\n");
        for (int day = 11; day <= 20; ++day) {
            const QString copy = path(QString("copies/OM-2026-02-%1.MDB").arg(day));
            QFile::copy(path(), copy);
            OtherProgram(copy).run(QString("UPDATE TANKLST SET tankname = 'Copy %1'").arg(day));
        }
    }
    /// The tanks of a database, which must be whole.
    QString tankIn(const QString &name)
    {
        EXPECT_EQ(OtherProgram(path(name)).run("PRAGMA integrity_check"), "ok") << name.toStdString();
        return OtherProgram(path(name)).run("SELECT group_concat(tankname) FROM (SELECT * FROM TANKLST ORDER BY 1)");
    }
    void expectWholeCopies()
    {
        const QStringList copies = QDir(path("copies")).entryList(QDir::Files | QDir::Hidden);
        const QStringList complete = copies.filter(QRegularExpression("MDB$"));
        EXPECT_TRUE(complete.size() == 10 || complete.size() == 11) << copies.join(' ').toStdString();
        for (const QString &copy : complete)
            EXPECT_EQ(tankIn("copies/" + copy), copy.contains("2026-02-") ? "Copy " + copy.mid(11, 2) : QString("Now"));
    }

    /// The given name, or the copy that was made today.
    QString keepsNow(const QString &name) const
    {
        const QDir copies(path("copies"), "*.MDB");
        for (const QString &copy : copies.entryList(QDir::Files))
            if (name.isEmpty() && !copy.contains("2026-02-"))
                return "copies/" + copy;
        return name;
    }

    QStringList strayFiles()
    {
        return QDir(folder.path()).entryList({"*new-*"}, QDir::Files | QDir::Hidden) +
               QDir(path("copies")).entryList({"*new-*"}, QDir::Files | QDir::Hidden);
    }

    const QByteArray m_database = contentOf(folder.path())["OM.MDB"];
};

TEST_F(KilledCopies, EveryDatabaseIsWholeAndTheNextTryComesThrough)
{
    const struct
    {
        const char *name, *program;
        QStringList arguments;
        QString done;         ///< the tanks afterwards
        const char *keepsNow; ///< the database that has the tank "Now" as soon as it is done; empty: a copy of any day
    } works[] = {
        {"first change of a day", OMK_FIRST_CHANGE, {path()}, "New", "copies/OM-2026-03-14.MDB"},
        {"an import", OMK_DATA_PROGRAM, {"--folder", folder.path(), "import", path("tanks.csv")}, "New,Now,Other", ""},
        {"restoring a copy",
         OMK_DATA_PROGRAM,
         {"--folder", folder.path(), "restore", "2026-02-17"},
         "Copy 17",
         "OM-before-restore.MDB"},
    };
    const auto options = testing::internal::GetArgvs();
    const int stride = std::ranges::count(options, "--kills=all") > 0 ? 1 : 7;
    KilledAtCall calls(folder.path());
    for (const auto &work : works) {
        int kills = 0, done = 0;
        for (int call = 0; !HasFailure(); call += stride, ++kills) {
            SCOPED_TRACE(std::string(work.name) + ' ' + std::to_string(call));
            prepare();
            if (!calls.run(call, work.program, work.arguments))
                break;
            const bool isDone = tankIn("OM.MDB") == work.done;
            EXPECT_EQ(tankIn(isDone ? keepsNow(work.keepsNow) : "OM.MDB"), "Now");
            done += isDone;
            expectWholeCopies();
            calls.run(1000, work.program, work.arguments);
            EXPECT_EQ(tankIn("OM.MDB") + ' ' + tankIn(keepsNow(work.keepsNow)), work.done + " Now");
            EXPECT_EQ(strayFiles(), QStringList());
        }
        expectWholeCopies();
        EXPECT_GT(kills * stride, 15);
        std::printf("| %s, killed at each write | %d, %d of them when all was done |\n", work.name, kills, done);
    }
}
