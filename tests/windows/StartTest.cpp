#include "Keeper.h"
#include "shell/KeepersFolder.h"
#include "support/TestFiles.h"

namespace {

/// Where the program is started, with the data of its installation; puts the current directory back.
struct Place
{
    Place()
    {
        QDir(top.path()).mkdir("data");
        for (const char *name : {"data/NAMESSW.TXT", "data/NAMESFW.TXT"})
            writeFile(path(name), "ours");
    }
    ~Place() { QDir::setCurrent(former); }
    QString path(const QString &name) const { return top.filePath(name); }
    bool open(KeepersFolder &folder, const QString &name = "keeper/logbook")
    {
        return folder.open(path(name), path("data"));
    }

    const QTemporaryDir top;
    const QString former = QDir::currentPath();
    ScriptedDoors doors;
};

} // namespace

TEST(Start, FirstStartMakesTheFolderAndTheNextOverwritesNothing)
{
    Place place;
    {
        KeepersFolder folder;
        ASSERT_TRUE(place.open(folder));
        EXPECT_EQ(QDir::currentPath(), place.path("keeper/logbook"));
        EXPECT_EQ(QDir().entryList(QDir::Files), QStringList({"NAMESFW.TXT", "NAMESSW.TXT", "OM.MDB"}));
        Database::OpenDatabase("OM.MDB")->Execute("INSERT INTO TANKLST (tankname, tankid) VALUES ('Reef', 'R')");
    }
    QFile::rename("OM.MDB", "Om.Mdb");
    QFile::rename("NAMESSW.TXT", "namessw.txt");
    writeFile("namessw.txt", "the keeper's");
    QFile::remove("NAMESFW.TXT");
    KeepersFolder folder;
    ASSERT_TRUE(place.open(folder));
    EXPECT_EQ(QDir().entryList(QDir::Files), QStringList({"NAMESFW.TXT", "namessw.txt", "Om.Mdb"}));
    EXPECT_EQ(QFileInfo("namessw.txt").size(), 12);
    EXPECT_FALSE(Database::OpenDatabase("OM.MDB")->OpenRecordset("SELECT * FROM TANKLST").EOF_());
}

TEST(Start, TheSecondOnAFolderSaysSoAndMakesNothing)
{
    Place place;
    KeepersFolder second, elsewhere;
    {
        KeepersFolder first;
        ASSERT_TRUE(place.open(first));
        QFile::remove("OM.MDB");
        EXPECT_FALSE(place.open(second));
        EXPECT_TRUE(place.doors.told().contains(place.path("keeper/logbook")));
        EXPECT_FALSE(QFile::exists("OM.MDB"));
        EXPECT_TRUE(place.open(elsewhere, "other"));
    }
}

TEST(Start, WhatCannotBeMadeFails)
{
    Place place;
    writeFile(place.path("letter"), "Dear ...");
    KeepersFolder folder;
    EXPECT_THROW(place.open(folder, "letter/logbook"), RuntimeFailure);
    // The database was lost, and its journal is not to be played into an empty one.
    QDir(place.top.path()).mkdir("lost");
    writeFile(place.path("lost/om.mdb-journal"), "pages");
    EXPECT_TRUE(place.open(folder, "lost"));
    EXPECT_FALSE(QFile::exists("OM.MDB"));
}
