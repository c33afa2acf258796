// The empty database that the installer writes, and the word list in it.
#include "store/NewDatabase.h"

#include "store/WordList.h"
#include "StoreFixture.h"

namespace {

using NewDatabaseTest = StoreTest;

TEST_F(NewDatabaseTest, StandsAtThePresentVersionWithItsWords)
{
    Recordset config = db->OpenRecordset("SELECT * FROM CONFIG");
    ASSERT_EQ(config.RecordCount(), 1);
    EXPECT_EQ(config["db_version"].text(), "2.0 ");
    EXPECT_EQ(config["user_fieldname1"].text() + u'|' + config["user_fieldname2"].text(), "User Field 1|User field 2");
    for (const auto &[type, words] : {std::pair{"1", 55}, {"M", 12}, {"2", int(marineAnimals().size())}})
        EXPECT_EQ(db->OpenRecordset("SELECT * FROM ANIMALLIST WHERE AnimalType = ?", {QString(type)}).RecordCount(),
                  words);
    EXPECT_EQ(OtherProgram(path()).run("PRAGMA journal_mode"), "delete");
}

TEST_F(NewDatabaseTest, AFileThatIsThereIsLeftAsItIs)
{
    writeFile(path("letter.txt"), "Dear");
    const auto before = contentOf(folder.path());
    const std::pair<const char *, Failure> cases[] = {
        {"om.mdb", Failure::PermissionDenied},
        {"letter.txt", Failure::PermissionDenied},
        {"nowhere/OM.MDB", Failure::PathNotFound},
    };
    for (const auto &[name, number] : cases)
        EXPECT_EQ(numberOf([&] { CreateDatabase(path(name)); }), int(number)) << name;
    EXPECT_EQ(contentOf(folder.path()), before);
}

} // namespace
