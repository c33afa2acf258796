// Tests of the export: the bytes of each file, one tank alone, folders that have such files, and failures.
#include "DataFixture.h"

namespace {

struct ExportTest : DataTest
{
    ExportTest()
    {
        addTank("reef \"1\"");
        addTank("Pond");
        run("INSERT INTO WATERLOG (tankname, logdate, logtime, ph, nitrate, Comment) VALUES "
            "('id of Pond', '2026-01-03', '09:00:00', 7.5, NULL, ' '), "
            "('id of Pond', '2026-01-02', '21:00:00', 1e-7, 0.1, ''), "
            "('gone', '2026-01-03', '09:00:00', 7.5, NULL, NULL)");
        run("INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname, quantity, Status, price_paid, "
            "datelost) VALUES "
            "('id of reef \"1\"', '2025-12-31', '09:00:00', 'Goby', 2, 'Sold', 12.5, '2026-02-01')");
        run("INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime, maintlogtask, maintlogqty, maintlognote) "
            "VALUES ('id of Pond', '2026-01-03', '09:00:00', 'Clean', 'many', 'a\r\nb')");
        run("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype, "
            "SchedRSubtype, SchedDetailText) VALUES "
            "('Once', '2026-01-01', '2028-01-01', 1, 4, 0, '12/31/26'), "
            "('Week', '2026-01-01', 'soon', 2, 1, NULL, '0101000'), ('Odd', NULL, NULL, NULL, 9, 7, '99')");
    }
    std::map<QString, QByteArray> there() { return contentOf(path("out")); }
};

TEST_F(ExportTest, EachFileHasAHeaderAndItsRowsInOrder)
{
    const ExportResult result = Export(g, {.folder = path("out")});
    EXPECT_EQ(result.refusal, "");
    EXPECT_EQ(result.lost, 1);
    EXPECT_EQ(result.files.size(), 5u);
    EXPECT_EQ(result.files[1].rows, 2);
    const std::map<QString, QByteArray> expected = {
        {"tanks.csv", "tank,description,size,water_type,notes\r\n\"Pond\",,55,\"freshwater\",\r\n\"reef "
                      "\"\"1\"\"\",,55,\"freshwater\",\r\n"},
        {"water.csv",
         "tank,date,time,ammonia,nitrite,nitrate,ph,sg,temp,oxygen,dkh,calcium,copper,orp,custom1,custom2,comment\r\n"
         "\"Pond\",2026-01-02,21:00:00,,,0.1,1e-07,,,,,,,,,,\"\"\r\n"
         "\"Pond\",2026-01-03,09:00:00,,,,7.5,,,,,,,,,,\" \"\r\n"},
        {"livestock.csv",
         "tank,date,time,animal,quantity,status,price_paid,price_sold,date_lost,where_purchased,comment\r\n"
         "\"reef \"\"1\"\"\",2025-12-31,09:00:00,\"Goby\",2,\"Sold\",12.5,,2026-02-01,,\r\n"},
        {"maintenance.csv", "tank,date,time,task,description,quantity,unit,notes\r\n"
                            "\"Pond\",2026-01-03,09:00:00,\"Clean\",,\"many\",,\"a\r\nb\"\r\n"},
        {"reminders.csv", "reminder,start_date,end_date,pattern,variant,interval,detail,sentence\r\n"
                          "\"Odd\",,,9,7,,\"99\",\r\n"
                          "\"Once\",2026-01-01,2028-01-01,\"once\",0,1,\"2026-12-31\",\r\n"
                          "\"Week\",2026-01-01,\"soon\",\"weekly\",,2,\"Monday, Wednesday\",\r\n"},
    };
    EXPECT_EQ(there(), expected);
}

TEST_F(ExportTest, OneTankIsWrittenWithoutReminders)
{
    EXPECT_EQ(Export(g, {.folder = path("out"), .tank = "Pond"}).lost, 0);
    std::map<QString, int> lines;
    for (const auto &[name, content] : there())
        lines[name] = int(content.count("\r\n"));
    EXPECT_EQ(lines, (std::map<QString, int>{
                         {"livestock.csv", 1}, {"maintenance.csv", 3}, {"tanks.csv", 2}, {"water.csv", 3}}));
    EXPECT_EQ(Export(g, {.folder = path("none"), .tank = "pond"}).refusal, "There is no tank named \"pond\".");
    EXPECT_FALSE(QDir(path("none")).exists());
}

TEST_F(ExportTest, FilesThatAreThereStayUnlessTheyAreReplacedByWholeOnes)
{
    QDir().mkpath(path("out"));
    writeFile(path("out/livestock.csv"), "mine");
    const auto before = there();
    EXPECT_TRUE(Export(g, {.folder = path("out")}).refusal.startsWith("The folder has a file livestock.csv already."));
    {
        const SmallDisk disk(100, false);
        EXPECT_EQ(numberOf([this] { Export(g, {.folder = path("out"), .replaces = true}); }), int(Failure::DiskFull));
    }
    EXPECT_EQ(there(), before);
    EXPECT_EQ(Export(g, {.folder = path("out"), .replaces = true}).refusal, "");
    EXPECT_EQ(there().size(), 5u);
    EXPECT_NE(there()["livestock.csv"], "mine");
}

} // namespace
