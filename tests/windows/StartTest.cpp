#include "Keeper.h"
#include "logic/shell/KeepersFolder.h"
#include "support/Failures.h"
#include "support/TestFiles.h"

/// A place where the program is started, with the data of its installation. Restores the current directory.
class Start : public ::testing::Test
{
protected:
    Start()
    {
        QDir(top.path()).mkdir("data");
        for (const char *name : {"data/NAMESSW.TXT", "data/NAMESFW.TXT"})
            writeFile(path(name), "ours");
    }
    ~Start() override { QDir::setCurrent(former); }
    QString path(const QString &name) const { return top.filePath(name); }
    bool open(KeepersFolder &folder, const QString &name = "keeper/logbook")
    {
        return folder.open(path(name), path("data"));
    }

    const QTemporaryDir top;
    const QString former = QDir::currentPath();
    ScriptedDoors doors;
};

TEST_F(Start, FirstStartMakesTheFolderAndTheNextOverwritesNothing)
{
    ASSERT_TRUE(open(*std::make_unique<KeepersFolder>()));
    EXPECT_EQ(QDir::currentPath(), path("keeper/logbook"));
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList({"NAMESFW.TXT", "NAMESSW.TXT", "OM.MDB"}));
    Database::OpenDatabase("OM.MDB")->Execute("INSERT INTO TANKLST (tankname, tankid) VALUES ('Reef', 'R')");
    QFile::rename("OM.MDB", "Om.Mdb");
    QFile::rename("NAMESSW.TXT", "namessw.txt");
    writeFile("namessw.txt", "the keeper's");
    QFile::remove("NAMESFW.TXT");
    KeepersFolder folder;
    ASSERT_TRUE(open(folder));
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList({"NAMESFW.TXT", "namessw.txt", "Om.Mdb"}));
    EXPECT_EQ(QFileInfo("namessw.txt").size(), 12);
    EXPECT_FALSE(Database::OpenDatabase("OM.MDB")->OpenRecordset("SELECT * FROM TANKLST").EOF_());
}

TEST_F(Start, TheSecondOnAFolderSaysSoAndMakesNothing)
{
    KeepersFolder first, second, elsewhere;
    ASSERT_TRUE(open(first));
    int asked = 0;
    first.onSecondStart([&asked] { ++asked; });
    QFile::remove("OM.MDB");
    EXPECT_FALSE(open(second));
    EXPECT_TRUE(QTest::qWaitFor([&asked] { return asked == 1; })) << "to come to the front";
    EXPECT_TRUE(doors.told().contains(path("keeper/logbook")));
    EXPECT_FALSE(QFile::exists("OM.MDB"));
    EXPECT_TRUE(open(elsewhere, "other"));
}

TEST_F(Start, WhatCannotBeMadeFailsWithWhereWhyAndWhatToDo)
{
    writeFile(path("letter"), "Dear ...");
    const auto failure = failureOf([this] { open(*std::make_unique<KeepersFolder>(), "letter/logbook"); });
    ASSERT_TRUE(failure) << "below a file";
    EXPECT_EQ(WithAdviceForTheStart(*failure).description(),
              "Path not found.\nThe folder for your data could not be made:\n" + path("letter/logbook") +
                  "\n(Not a directory)\n\nYour data can also be in another folder. Start the program with its name: "
                  "ostrelmark FOLDER");
}

TEST_F(Start, ALostDatabaseIsToldAndAnEmptyOneIsMadeOnlyWhereNothingTellsOfAnother)
{
    const std::pair<QString, bool> cases[] = {
        {"NAMESSW.TXT", true},        {"namesfw.txt", true},    {"copies", true},          {"om-2026.MDB", true},
        {"OM-version-1.0.MDB", true}, {"om.mdb-journal", true}, // must not be applied to a new database
        {"letter.txt", false},        {"TOM.MDB", false},       {"OM.MDB.new-123", false}, // a first start was killed
    };
    for (const auto &[holds, used] : cases) {
        SCOPED_TRACE(holds.toStdString());
        const QString folder = path("used-" + holds);
        QDir().mkpath(folder + (holds == u"copies" ? "/copies" : ""));
        if (holds != u"copies")
            writeFile(folder + '/' + holds, "content");
        const auto before = contentOf(folder);
        const auto failure = failureOf([&] { open(*std::make_unique<KeepersFolder>(), "used-" + holds); });
        EXPECT_EQ(contentOf(folder) == before, used);
        EXPECT_EQ(QFile::exists(folder + "/OM.MDB"), !used);
        const QString told = failure ? failure->description() : "";
        EXPECT_EQ(failure ? failure->number() : Failure(), used ? Failure::CouldNotFindFile : Failure());
        EXPECT_EQ(told.contains(folder + "\n\nThe folder was used before: it holds " + holds), used)
            << told.toStdString();
    }
}

TEST_F(Start, TheFolderIsTheArgumentOrTheCurrentOneWithADatabaseOrTheUsualOne)
{
    for (const char *name : {"empty", "logbook", "logbook/sub"})
        QDir(top.path()).mkdir(name);
    writeFile(path("logbook/om.mdb"), "");
    QDir::setCurrent(path("empty"));
    EXPECT_TRUE(KeepersFolder::choose({}).endsWith("/ostrelmark"));
    QDir::setCurrent(path("logbook"));
    EXPECT_EQ(KeepersFolder::choose({}), path("logbook"));
    KeepersFolder folder;
    ASSERT_TRUE(folder.open(KeepersFolder::choose("sub"), path("data")));
    EXPECT_EQ(QDir::currentPath(), path("logbook/sub"));
}
