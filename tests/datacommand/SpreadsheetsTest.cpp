// The verbs export and import as a shell uses them: options, statuses, what is printed, and the lock of the folder.
#include "CommandFixture.h"

namespace {

struct Spreadsheets : CommandTest
{
    Spreadsheets()
    {
        addTank("Reef");
        writeFile(path("in.csv"), "Tank;Date;NO3;Colour\r\nReef;24.11.2026;0,5;blue\r\n");
    }
    QStringList import(const QStringList &options = {}) const
    {
        return QStringList{"import", path("in.csv"), "--map", "NO3=nitrate,Colour=", "--date-order",
                           "dmy",    "--delimiter",  ";",     "--decimal-comma"} +
               options;
    }
};

TEST_F(Spreadsheets, AFileIsCheckedImportedAndExported)
{
    EXPECT_EQ(run(import({"--dry-run"})).out,
              "water test: 1 added, 0 replaced, 0 there already\nThis was a dry run. Nothing was stored.\n");
    EXPECT_EQ(asked("SELECT count(*) FROM WATERLOG"), "0");
    EXPECT_EQ(run(import()).out, "water test: 1 added, 0 replaced, 0 there already\n");
    EXPECT_EQ(asked("SELECT logdate || nitrate FROM WATERLOG"), "2026-11-240.5");
    writeFile(path("tanks.txt"), "tank\tsize\nBowl\t5\n");
    EXPECT_EQ(run({"import", path("tanks.txt"), "--delimiter", "tab"}).status, 0);

    Told told = run({"export", path("out")});
    EXPECT_EQ(told.status, 0);
    EXPECT_TRUE(told.out.contains("water.csv: 1 row\n")) << told.out.toStdString();
    told = run({"import", path("out/water.csv")});
    EXPECT_EQ(told.out, "water test: 0 added, 0 replaced, 1 there already\n");
    told = run({"export", path("out")});
    EXPECT_EQ(told.status, 1);
    EXPECT_TRUE(told.err.contains("The folder has a file tanks.csv already.")) << told.err.toStdString();
    EXPECT_EQ(run({"export", path("out"), "--force", "--tank", "Reef"}).status, 0);
    writeFile(path("in.csv"), "tank,ph\nPond,8\nReef,x\n");
    told = run({"import", path("in.csv")});
    EXPECT_EQ(told.status, 1);
    EXPECT_TRUE(told.out.isEmpty() && told.err.contains("line 2, tank \"Pond\": There is no tank of this name.\n"));
    EXPECT_TRUE(told.err.endsWith("2 faults. Nothing was stored.\n")) << told.err.toStdString();
    change("DELETE FROM TANKLST");
    told = run({"export", path("out"), "--force"});
    EXPECT_EQ(told.status, 1);
    EXPECT_TRUE(told.err.contains("1 entry of tanks that are gone")) << told.err.toStdString();
}

} // namespace
