// The empty database that the installer writes, and the word list in it.
#include "store/NewDatabase.h"

#include <set>

#include <QDir>
#include <QFile>

#include "store/WordList.h"
#include "StoreFixture.h"

namespace {

using NewDatabaseTest = StoreTest;

TEST_F(NewDatabaseTest, StandsAtThePresentVersionWithItsWords)
{
    Recordset config = db->OpenRecordset("SELECT * FROM CONFIG");
    ASSERT_EQ(config.RecordCount(), 1);
    EXPECT_EQ(config["db_version"].text(), "2.0 ");
    EXPECT_TRUE(config["default_salt"].value().toBool());
    EXPECT_FALSE(config["default_fresh"].value().toBool());
    EXPECT_EQ(config["user_fieldname1"].text() + u'|' + config["user_fieldname2"].text(), "User Field 1|User field 2");
    const std::pair<const char *, int> counts[] = {{"1", 55}, {"M", 12}, {"2", int(marineAnimals().size())}};
    for (const auto &[type, words] : counts)
        EXPECT_EQ(db->OpenRecordset("SELECT * FROM ANIMALLIST WHERE AnimalType = ?", {QString(type)}).RecordCount(),
                  words);
    for (const char *table : {"TANKLST", "WATERLOG", "MAINTLOG", "LIVESTOCK", "MAINTSCHED"})
        EXPECT_EQ(count(table), 0) << table;
    EXPECT_EQ(OtherProgram(path()).run("PRAGMA journal_mode"), "delete");
}

TEST_F(NewDatabaseTest, AFileThatIsThereIsLeftAsItIs)
{
    QFile foreign(path("letter.txt"));
    ASSERT_TRUE(foreign.open(QIODevice::WriteOnly));
    foreign.close();
    ASSERT_TRUE(QDir(folder.path()).mkdir("sub"));
    const auto before = contentOf(folder.path());
    const std::pair<const char *, Failure> cases[] = {
        {"OM.MDB", Failure::PermissionDenied},     {"om.mdb", Failure::PermissionDenied},
        {"letter.txt", Failure::PermissionDenied}, {"sub", Failure::PermissionDenied},
        {"nowhere/OM.MDB", Failure::PathNotFound}, {"letter.txt/OM.MDB", Failure::PathNotFound},
    };
    for (const auto &[name, number] : cases)
        EXPECT_EQ(numberOf([&] { CreateDatabase(path(name)); }), int(number)) << name;
    EXPECT_EQ(contentOf(folder.path()), before);
}

TEST_F(NewDatabaseTest, TheMarineListIsSortedWithoutDoubles)
{
    const auto animals = marineAnimals();
    EXPECT_GE(animals.size(), 150u);
    for (std::size_t i = 1; i < animals.size(); ++i)
        EXPECT_LT(QString(animals[i - 1]).toCaseFolded(), QString(animals[i]).toCaseFolded());
    for (const char *animal : animals)
        EXPECT_TRUE(QString(animal) == QString(animal).simplified() && QString(animal).size() <= 50) << animal;
}

} // namespace
