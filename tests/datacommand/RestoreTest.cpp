// A copy takes the place of the database only if it is whole, and the present file is kept.
#include "CommandFixture.h"
#include "OldDatabase.h"

struct Restore : CommandTest
{
    Restore()
    {
        addTank("Old");
        QDir(folder.path()).mkdir("copies");
        writeFile(path(copyName), contentOf(folder.path())["OM.MDB"]);
        change("UPDATE TANKLST SET tankname = 'New'");
    }
    /// The tank in a database of the folder.
    QString tank(const QString &name = "OM.MDB")
    {
        return OtherProgram(path(name)).run("SELECT tankname FROM TANKLST");
    }

    const QString copyName = "copies/OM-2026-03-10.MDB";
};

TEST_F(Restore, TheListNamesEveryCopyWithWhatItHolds)
{
    writeFile(path("OM-broken.MDB"), "no database");
    writeFile(path("note.txt"), "no copy");
    const QString list = run({"restore"}).out;
    const QFileInfo copy(path(copyName));
    EXPECT_TRUE(list.contains(copy.lastModified().toString("yyyy-MM-dd hh:mm"))) << list.toStdString();
    EXPECT_TRUE(list.contains(QLocale::c().toString(copy.size()) + " bytes  " + copyName +
                              "  1 tank, 0 entries, 0 reminders\n"));
    EXPECT_TRUE(list.contains("OM-broken.MDB  (not a database"));
    EXPECT_EQ(list.count('\n'), 2) << list.toStdString();
}

TEST_F(Restore, ACopyIsFoundByItsPathItsNameOrItsDate)
{
    for (const QString &name : {path(copyName), copyName, copyName.section('/', 1), QString("2026-03-10")}) {
        const QString told = run({"restore", name}).out;
        EXPECT_EQ(tank(), "Old");
        EXPECT_TRUE(told.contains("1 tank, 0 entries, 0 reminders")) << told.toStdString();
        EXPECT_TRUE(told.contains("The former database was kept as " + path("OM-before-restore")));
        change("UPDATE TANKLST SET tankname = 'New'");
    }
    EXPECT_EQ(tank("OM-before-restore.MDB"), "New");
    EXPECT_EQ(tank("copies/OM-2026-03-14.MDB"), "New") << "the copy of the day";
    EXPECT_EQ(tank(copyName), "Old");
}

TEST_F(Restore, ALostDatabaseComesBackAndADamagedOneIsKept)
{
    for (const QByteArray &present : {QByteArray(), QByteArray("nothing that can be read")}) {
        QFile::remove(path());
        if (!present.isEmpty())
            writeFile(path(), present);
        EXPECT_EQ(run({"restore", copyName}).status, 0);
        EXPECT_EQ(tank(), "Old");
        EXPECT_EQ(contentOf(folder.path())["OM-before-restore.MDB"], present);
    }
    QFile::remove(path());
    writeFile(path("OM.MDB-journal"), "pages"); // nobody can roll them back, and they must not be applied to the copy
    expectFailure({"restore", copyName}, "OM.MDB-journal");
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(Restore, AnOldVersionIsLeftToTheUpgrade)
{
    WriteOldDatabase(path("OM-version-1.1.MDB"), "1.1", 3);
    EXPECT_TRUE(run({"restore", "OM-version-1.1.MDB"}).out.contains("The next start of Ostrelmark upgrades it"));
    EXPECT_EQ(asked("SELECT db_version FROM CONFIG"), "1.1 ");
}

TEST_F(Restore, TheOldestCopyCanBeRestoredAlthoughTheCopyOfTheDayTakesItsPlace)
{
    for (int day = 1; day <= 9; ++day)
        QFile::copy(path(copyName), path(QString("copies/OM-2026-02-0%1.MDB").arg(day)));
    OtherProgram(path("copies/OM-2026-02-01.MDB")).run("UPDATE TANKLST SET tankname = 'Oldest'");
    EXPECT_EQ(run({"restore", "2026-02-01"}).status, 0);
    EXPECT_EQ(tank(), "Oldest");
    EXPECT_EQ(QDir(path("copies")).entryList(QDir::Files).size(), 10);
}

TEST_F(Restore, WhatIsNoWholeDatabaseIsRefusedAndNothingChanges)
{
    QByteArray damaged = contentOf(path("copies")).begin()->second;
    std::fill_n(damaged.end() - 2 * 4096, 4096, '\xff');
    writeFile(path("OM-damaged.MDB"), damaged);
    writeFile(path("OM-short.MDB"), damaged.first(damaged.size() / 2));
    writeFile(path("OM-text.MDB"), "no database");
    QFile::copy(path(copyName), path("OM-future.MDB"));
    OtherProgram(path("OM-future.MDB")).run("UPDATE CONFIG SET db_version = '9.9 '");
    QFile::copy(path(copyName), path("OM-unfinished.MDB"));
    writeFile(path("OM-unfinished.MDB-journal"), "pages");
    const auto before = contentOf(folder.path()), copies = contentOf(path("copies"));
    const std::pair<const char *, const char *> rows[] = {
        {"OM-damaged.MDB", "is damaged"},
        {"OM-short.MDB", "OM-short.MDB (database disk image is malformed)"},
        {"OM-text.MDB", "too short"},
        {"OM-future.MDB", "version 9.9"},
        {"OM-unfinished.MDB", "OM-unfinished.MDB-journal"},
        {"OM.MDB", "is the database itself"},
        {"OM-none.MDB", "There is no copy OM-none.MDB"},
        {"1999-01-01", "There is no copy 1999-01-01"},
    };
    for (const auto &[name, words] : rows) {
        expectFailure({"restore", name}, words);
        EXPECT_EQ(contentOf(folder.path()), before) << name;
        EXPECT_EQ(contentOf(path("copies")), copies) << name;
    }
}
