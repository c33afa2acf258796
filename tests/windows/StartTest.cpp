#include "Keeper.h"
#include "logic/shell/KeepersFolder.h"
#include "support/TestFiles.h"

namespace {

/// A place where the program is started, with the data of its installation. Restores the current directory.
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
        int asked = 0;
        first.onSecondStart([&asked] { ++asked; });
        QFile::remove("OM.MDB");
        EXPECT_FALSE(place.open(second));
        EXPECT_TRUE(QTest::qWaitFor([&asked] { return asked == 1; })) << "to come to the front";
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
    try {
        place.open(folder, "letter/logbook");
        FAIL() << "below a file";
    } catch (const RuntimeFailure &failure) {
        const QStringList told = WithAdviceForTheStart(failure).description().split('\n');
        EXPECT_EQ(told.value(0), "Path not found.");
        EXPECT_TRUE(told.contains(place.path("letter/logbook"))) << "on a line of its own, which a box keeps whole";
        EXPECT_TRUE(told.contains('(' + qt_error_string(ENOTDIR) + ')')) << told.join('\n').toStdString();
        EXPECT_TRUE(told.last().endsWith("ostrelmark FOLDER"));
    }
    EXPECT_TRUE(
        WithAdviceForTheStart(RuntimeFailure(Failure::UnrecognizedFormat, "x")).description().contains("backup"));
}

TEST(Start, ALostDatabaseIsToldAndAnEmptyOneIsMadeOnlyWhereNothingTellsOfAnother)
{
    Place place;
    const struct
    {
        const char *holds;
        bool used;
    } cases[] = {
        {"NAMESSW.TXT", true},        {"namesfw.txt", true},    {"copies", true},          {"om-2026.MDB", true},
        {"OM-version-1.0.MDB", true}, {"om.mdb-journal", true}, // must not be applied to a new database
        {"letter.txt", false},        {"TOM.MDB", false},       {"OM.MDB.new-123", false}, // a first start was killed
    };
    for (const auto &[holds, used] : cases) {
        SCOPED_TRACE(holds);
        const QString name = QStringLiteral("used-") + holds, folder = place.path(name);
        QDir(place.top.path()).mkdir(name);
        if (QLatin1String(holds) == QLatin1String("copies"))
            QDir(folder).mkdir(holds);
        else
            writeFile(folder + '/' + holds, "content");
        const auto before = contentOf(folder);
        KeepersFolder keepers;
        try {
            EXPECT_TRUE(place.open(keepers, name));
            EXPECT_FALSE(used);
            EXPECT_EQ(QDir().entryList({"*.TXT", "OM.MDB"}).size(), QLatin1String(holds).endsWith(u".txt") ? 4 : 3);
        } catch (const RuntimeFailure &failure) {
            EXPECT_TRUE(used);
            EXPECT_EQ(failure.number(), Failure::CouldNotFindFile);
            for (const QString &told : {QString("OM.MDB"), folder, QString(holds)})
                EXPECT_TRUE(failure.description().contains(told)) << failure.description().toStdString();
            EXPECT_EQ(contentOf(folder), before);
        }
    }
}

TEST(Start, TheFolderIsTheArgumentOrTheCurrentOneWithADatabaseOrTheUsualOne)
{
    Place place;
    for (const char *name : {"empty", "logbook", "logbook/sub"})
        QDir(place.top.path()).mkdir(name);
    writeFile(place.path("logbook/om.mdb"), "");
    QDir::setCurrent(place.path("empty"));
    EXPECT_TRUE(KeepersFolder::choose({}).endsWith("/ostrelmark"));
    QDir::setCurrent(place.path("logbook"));
    EXPECT_EQ(KeepersFolder::choose({}), place.path("logbook"));
    KeepersFolder folder;
    ASSERT_TRUE(folder.open(KeepersFolder::choose("sub"), place.path("data")));
    EXPECT_EQ(QDir::currentPath(), place.path("logbook/sub"));
    EXPECT_TRUE(QFile::exists("OM.MDB"));
}
