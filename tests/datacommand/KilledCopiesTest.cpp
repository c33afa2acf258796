// The copy of the day and the restoring of a copy, killed before each call that changes a file: every database in the
// folder is whole at any time, and the next try comes through.
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

    /// Between two calls at which the program is killed.
    static int stride()
    {
        const auto arguments = testing::internal::GetArgvs();
        return std::ranges::count(arguments, "--kills=all") > 0 ? 1 : 7;
    }
    /// A folder with a tank "Now", and ten copies, each with a tank of its own.
    void prepare()
    {
        QDir(folder.path()).removeRecursively();
        QDir().mkpath(path("copies"));
        writeFile(path(), m_database);
        change("INSERT INTO TANKLST (tankname, tankid) VALUES ('Now', 'id')");
        for (int day = 1; day <= 10; ++day) {
            const QString copy = path(QString("copies/OM-2026-02-%1.MDB").arg(day, 2, 10, QChar('0')));
            QFile::copy(path(), copy);
            OtherProgram(copy).run(QString("UPDATE TANKLST SET tankname = 'Copy %1'").arg(day));
        }
    }
    /// The tank of a database, which must be whole.
    QString tankIn(const QString &name)
    {
        EXPECT_EQ(OtherProgram(path(name)).run("PRAGMA integrity_check"), "ok") << name.toStdString();
        return OtherProgram(path(name)).run("SELECT tankname FROM TANKLST");
    }
    QStringList files(const QString &place) { return QDir(path(place)).entryList(QDir::Files | QDir::Hidden); }
    void expectWholeCopies()
    {
        const QStringList copies = files("copies").filter(QRegularExpression("MDB$"));
        EXPECT_TRUE(copies.size() == 10 || copies.size() == 11) << copies.join(' ').toStdString();
        for (const QString &copy : copies)
            EXPECT_EQ(tankIn("copies/" + copy),
                      copy.contains("03-14") ? "Now" : QString("Copy %1").arg(copy.mid(11, 2).toInt()));
    }

    const QByteArray m_database = contentOf(folder.path())["OM.MDB"];
};

TEST_F(KilledCopies, TheCopyOfTheDayIsWholeOrNotThere)
{
    KilledAtCall calls(folder.path());
    int kills = 0, copied = 0;
    for (int call = 0;; call += stride(), ++kills) {
        SCOPED_TRACE(call);
        prepare();
        if (!calls.run(call, OMK_FIRST_CHANGE, {path()}))
            break;
        const QString tank = tankIn("OM.MDB");
        EXPECT_TRUE(tank == "Now" || tank == "New") << tank.toStdString();
        EXPECT_TRUE(tank == "Now" || QFile::exists(path("copies/OM-2026-03-14.MDB"))) << "changed without a copy";
        copied += QFile::exists(path("copies/OM-2026-03-14.MDB"));
        expectWholeCopies();
        calls.run(1000, OMK_FIRST_CHANGE, {path()});
        EXPECT_EQ(tankIn("OM.MDB"), "New");
        EXPECT_EQ(files("copies").filter(QRegularExpression("MDB$")).size(), files("copies").size())
            << "a draft is left: " << files("copies").join(' ').toStdString();
        if (HasFailure())
            break;
    }
    EXPECT_EQ(tankIn("OM.MDB"), "New");
    expectWholeCopies();
    EXPECT_EQ(files("copies").size(), 10);
    EXPECT_GT(kills * stride(), 15);
    std::printf("| first change of a day, killed at each write | %d, %d of them with the copy |\n", kills, copied);
}

TEST_F(KilledCopies, TheDatabaseIsTheFormerOneOrTheCopy)
{
    KilledAtCall calls(folder.path());
    const QStringList arguments{"--folder", folder.path(), "restore", "2026-02-07"};
    int kills = 0, done = 0;
    for (int call = 0;; call += stride(), ++kills) {
        SCOPED_TRACE(call);
        prepare();
        if (!calls.run(call, OMK_DATA_PROGRAM, arguments))
            break;
        const QString tank = tankIn("OM.MDB");
        done += tank == "Copy 7";
        EXPECT_TRUE(tank == "Now" || (tank == "Copy 7" && tankIn("OM-before-restore.MDB") == "Now"))
            << tank.toStdString();
        const Told told = run({"restore", "2026-02-07"});
        EXPECT_EQ(told.status, 0) << told.err.toStdString();
        EXPECT_EQ(tankIn("OM.MDB"), "Copy 7");
        EXPECT_EQ(tankIn("OM-before-restore.MDB"), "Now");
        EXPECT_TRUE(files(".").filter("new-").isEmpty()) << files(".").join(' ').toStdString();
        if (HasFailure())
            break;
    }
    EXPECT_EQ(tankIn("OM.MDB"), "Copy 7");
    EXPECT_GT(kills * stride(), 15);
    std::printf("| restoring a copy, killed at each write | %d, %d of them when all was done |\n", kills, done);
}
