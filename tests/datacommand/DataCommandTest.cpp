// The command line of ostrelmark-data, and the verbs upcoming, check, export and import.
#include <fcntl.h>
#include <sys/file.h>

#include "CommandFixture.h"

using DataCommand = CommandTest;

TEST_F(DataCommand, AWrongCallIsToldApartFromAFailure)
{
    const std::tuple<QStringList, int, const char *> rows[] = {
        {{"--help"}, 0, "upcoming"},
        {{"calendar", "--help"}, 0, "--from"},
        {{"--version"}, 0, "Ostrelmark 2."},
        {{}, 2, "say what to do"},
        {{"frobnicate"}, 2, "frobnicate"},
        {{"upcoming", "--days", "0"}, 2, "--days"},
        {{"calendar"}, 2, "FILE"},
        {{"import", "a.csv", "--map", "ph"}, 2, "is not like"},
        {{"import", "a.csv", "--delimiter", "ab"}, 2, "is not a delimiter"},
        {{"import", "a.csv", "--delimiter", "\""}, 2, "is not a delimiter"},
        {{"import", "a.csv", "--delimiter", "."}, 2, "is not a delimiter"},
        {{"import", "a.csv", "--date-order", "DYM"}, 2, "--date-order"},
        {{"import", "/nowhere/none.csv"}, 1, "Reading /nowhere/none.csv."},
        {{"import", "/"}, 1, "Reading /."},
        {{"upcoming", "--folder", "/nowhere/at/all"}, 1, "There is no folder /nowhere/at/all."},
        {{"upcoming", "--folder", folder.path() + "/empty"}, 1, "OM.MDB was looked for in the folder"},
    };
    QDir(folder.path()).mkdir("empty");
    for (const auto &[arguments, status, words] : rows) {
        const Told told = run(arguments);
        EXPECT_EQ(told.status, status) << arguments.join(' ').toStdString();
        EXPECT_TRUE((status == 0 ? told.out : told.err).contains(words)) << testing::PrintToString(told);
        EXPECT_TRUE(status != 1 || told.err.count('\n') == 1) << "one line: " << told.err.toStdString();
    }
    EXPECT_TRUE(QDir(path("empty")).isEmpty()) << "a verb creates no logbook";
}

TEST_F(DataCommand, UpcomingGivesALineForEachDateInOrder)
{
    addReminder("feed", "2026-03-10", "2026-12-31", 2);
    addReminder("Clean\nthe \x1b[31mfilter", "2026-03-14", "2026-12-31", 4);
    EXPECT_EQ(run({"upcoming", "--days", "1"}).out, "Sat 03/14/26 Clean the  [31mfilter\nSat 03/14/26 feed\n");
    EXPECT_EQ(run({"upcoming"}).out.count('\n'), 6) << "from the 14th to the 20th";
    doors.settings().setValue("Date_Order", "DDMMYY");
    doors.settings().setValue("Date_Delim", ".");
    EXPECT_EQ(run({"upcoming", "--days", "3"}).out.section('\n', 2, 2), "Mon 16.03.26 feed");
    change("DELETE FROM MAINTSCHED");
    EXPECT_EQ(run({"upcoming"}).out, "");
}

TEST_F(DataCommand, ReadsBesideTheProgramAndChangesNothingThere)
{
    writeFile(path("OM-old.MDB"), contentOf(folder.path())["OM.MDB"]);
    writeFile(path("in.csv"), "reminder\nFeed\n");
    const int program = ::open(qPrintable(folder.path()), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(::flock(program, LOCK_EX | LOCK_NB), 0);
    const auto before = contentOf(folder.path());
    for (const QString verb : {"upcoming", "check", "restore"})
        EXPECT_EQ(run({verb}).status, 0) << verb.toStdString();
    expectFailure({"restore", "OM-old.MDB"}, "Ostrelmark has the folder");
    expectFailure({"import", path("in.csv")}, "Ostrelmark has the folder");
    EXPECT_EQ(contentOf(folder.path()), before);
    ::close(program);
    EXPECT_EQ(run({"restore", "OM-old.MDB"}).status, 0);
}

TEST_F(DataCommand, CheckFindsWhatNoWindowWouldHaveTakenAndDamage)
{
    addTank("Reef");
    change("INSERT INTO WATERLOG (tankname, logdate, logtime, nitrate) VALUES ('id Reef', '2026-03-01', '09:00:00', "
           "10)");
    addReminder("Feed", "2026-03-10", "2026-12-31", 2);
    const Told sound = run({"check"});
    EXPECT_EQ(sound.status, 0);
    EXPECT_TRUE(sound.out.endsWith(": 1 tank, 1 entry, 1 reminder; nothing was found.\n")) << sound.out.toStdString();

    const QByteArray good = contentOf(folder.path())["OM.MDB"];
    const auto expectFinding = [&](const QString &words) {
        const Told told = run({"check"});
        EXPECT_EQ(told.status, 1) << words.toStdString();
        for (const QString &word : words.split('|') + QStringList("What to do: "))
            EXPECT_TRUE(told.out.contains(word)) << word.toStdString() << '\n' << told.out.toStdString();
        QFile::remove(path());
        writeFile(path(), good);
    };
    const std::pair<const char *, const char *> rows[] = {
        {"UPDATE WATERLOG SET nitrate = 1e9",
         "water test of \"Reef\", 2026-03-01 09:00:00: nitrate is 1000000000; the window takes at most"},
        {"UPDATE WATERLOG SET ph = 'acid'", "ph is \"acid\", which is not a number"},
        {"UPDATE WATERLOG SET logdate = '2026-02-30'", "logdate is \"2026-02-30\", which is not a date"},
        {"UPDATE WATERLOG SET tankname = 'gone'", "1 water test of the tank with the id \"gone\""},
        {"UPDATE TANKLST SET tanksize = 10000", "tank \"Reef\": tanksize is 10000; the window takes at most 9999"},
        {"INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname, quantity) VALUES ('id Reef', "
         "'2026-03-01', '09:00:00', '', 32001)",
         "animalname is missing|quantity is 32001"},
        {"INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime, maintlogtask, maintlogunit) VALUES ('id "
         "Reef', '2026-03-01', '09:00:00', 'Clean', 'hectolitres')",
         "maintlogunit has 11 characters; the window takes 10"},
        {"UPDATE MAINTSCHED SET SchedStartDate = NULL", "Feed (it has no start date)"},
        {"UPDATE MAINTSCHED SET SchedRtype = 9", "Feed (it never occurs)"},
        {"UPDATE MAINTSCHED SET SchedRtype = 2, SchedDetailText = '30'", "Feed (When choosing the same day"},
        {"DROP INDEX WATERLOG_entry", "The index WATERLOG_ENTRY is missing"},
        {"ALTER TABLE TANKLST DROP COLUMN tanknotes", "The table TANKLST has no column tanknotes."},
    };
    for (const auto &[sql, words] : rows) {
        change(sql);
        expectFinding(words);
    }
    QByteArray damaged = good;
    std::fill_n(damaged.end() - 2 * 4096, 4096, '\xff');
    writeFile(path(), damaged);
    expectFinding("The file is damaged:|ostrelmark-data restore");
}

TEST_F(DataCommand, AFileIsCheckedImportedAndExported)
{
    addTank("Reef");
    writeFile(path("in.csv"), "Tank;Date;NO3;Colour\r\nReef;24.11.2026;0,5;blue\r\n");
    const QStringList import = {"import", path("in.csv"), "--map", "NO3=nitrate,Colour=", "--date-order",
                                "dmy",    "--delimiter",  ";",     "--decimal-comma"};
    EXPECT_EQ(run(import + QStringList("--dry-run")).out,
              "water test: 1 added, 0 replaced, 0 there already\nThis was a dry run. Nothing was stored.\n");
    EXPECT_EQ(run(import).out, "water test: 1 added, 0 replaced, 0 there already\n");
    EXPECT_EQ(asked("SELECT logdate || nitrate FROM WATERLOG"), "2026-11-240.5");
    writeFile(path("tanks.txt"), "tank\tsize\nBowl\t5\n");
    EXPECT_EQ(run({"import", path("tanks.txt"), "--delimiter", "tab"}).status, 0);

    EXPECT_TRUE(run({"export", path("out")}).out.contains("water.csv: 1 row\n"));
    EXPECT_EQ(run({"import", path("out/water.csv")}).out, "water test: 0 added, 0 replaced, 1 there already\n");
    expectFailure({"export", path("out")}, "The folder has a file tanks.csv already.");
    EXPECT_EQ(run({"export", path("out"), "--force", "--tank", "Reef"}).status, 0);
    writeFile(path("in.csv"), "tank,ph\nPond,8\nReef,x\n");
    expectFailure({"import", path("in.csv")}, "line 2, tank \"Pond\": There is no tank of this name.\n");
    expectFailure({"import", path("in.csv")}, "2 faults. Nothing was stored.\n");
    change("DELETE FROM TANKLST");
    expectFailure({"export", path("out"), "--force"}, "1 entry of tanks that are gone");
}
