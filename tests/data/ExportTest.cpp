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
            "('id of Pond', '2026-01-03', '09:00:00', 7.5, NULL, ' '), ('id of Pond', '2026-01-02', '21:00:00', 1e-7, "
            "0.1, '')");
        run("INSERT INTO WATERLOG (tankname, logdate, logtime, ph) VALUES ('gone', '2026-01-03', '09:00:00', 7.5)");
        run("INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname, quantity, Status, price_paid, "
            "datelost) VALUES "
            "('id of reef \"1\"', '2025-12-31', '09:00:00', 'Goby', 2, 'Sold', 12.5, '2026-02-01')");
        run("INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime, maintlogtask, maintlogqty, maintlognote) "
            "VALUES "
            "('id of Pond', '2026-01-03', '09:00:00', 'Clean', 'many', ?)",
            {QString("a\r\nb")});
        run("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype, "
            "SchedRSubtype, SchedDetailText) "
            "VALUES ('Once', '2026-01-01', '2028-01-01', 1, 4, 0, '12/31/26'), ('Week', '2026-01-01', 'soon', 2, 1, "
            "NULL, '0101000'), "
            "('Odd', NULL, NULL, NULL, 9, 7, '99')");
    }
    std::map<QString, QByteArray> there(const QString &name = "out") { return contentOf(path(name)); }
};

const QByteArray waterHead =
    "tank,date,time,ammonia,nitrite,nitrate,ph,sg,temp,oxygen,dkh,calcium,copper,orp,custom1,custom2,comment\r\n";

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
        {"water.csv", waterHead + "\"Pond\",2026-01-02,21:00:00,,,0.1,1e-07,,,,,,,,,,\"\"\r\n\"Pond\",2026-01-03,09:00:"
                                  "00,,,,7.5,,,,,,,,,,\" \"\r\n"},
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
    for (const auto &[name, content] : expected)
        EXPECT_EQ(there()[name].toStdString(), content.toStdString()) << name.toStdString();
    EXPECT_EQ(there().size(), expected.size());
}

TEST_F(ExportTest, OneTankIsWrittenWithoutReminders)
{
    const ExportResult result = Export(g, {.folder = path("out"), .tank = "Pond"});
    EXPECT_EQ(result.lost, 0);
    EXPECT_EQ(there().size(), 4u);
    EXPECT_EQ(there()["tanks.csv"].count("\r\n"), 2);
    EXPECT_EQ(there()["livestock.csv"].count("\r\n"), 1);
    EXPECT_EQ(there()["water.csv"].count("\r\n"), 3);
    EXPECT_EQ(Export(g, {.folder = path("none"), .tank = "pond"}).refusal, "There is no tank named \"pond\".");
    EXPECT_FALSE(QDir(path("none")).exists());
}

TEST_F(ExportTest, FilesThatAreThereStayUnlessTheyAreToBeReplaced)
{
    QDir().mkpath(path("out"));
    writeFile(path("out/livestock.csv"), "mine");
    writeFile(path("out/other.csv"), "other");
    EXPECT_TRUE(Export(g, {.folder = path("out")}).refusal.startsWith("The folder has a file livestock.csv already."));
    EXPECT_EQ(there(), (std::map<QString, QByteArray>{{"livestock.csv", "mine"}, {"other.csv", "other"}}));
    EXPECT_EQ(Export(g, {.folder = path("out"), .replaces = true}).refusal, "");
    EXPECT_EQ(there().size(), 6u);
    EXPECT_NE(there()["livestock.csv"], "mine");
}

TEST_F(ExportTest, OneLogIsWrittenForAWindow)
{
    EXPECT_EQ(ExportLog(g, MaintenanceTab, QString("id of Pond"), path("log.csv")), 1);
    EXPECT_EQ(ExportLog(g, WaterTab, {}, path("log.csv")), 2);
    EXPECT_TRUE(contentOf(folder.path())["log.csv"].startsWith(waterHead));
    EXPECT_EQ(ExportLog(g, LivestockTab, QString("gone"), path("log.csv")), 0);
}

TEST_F(ExportTest, AFullDiskLeavesTheFolderAsItWas)
{
    ASSERT_EQ(Export(g, {.folder = path("out")}).refusal, "");
    const auto before = there();
    {
        const SmallDisk disk(100, false);
        EXPECT_EQ(numberOf([this] { Export(g, {.folder = path("out"), .replaces = true}); }), int(Failure::DiskFull));
    }
    EXPECT_EQ(there(), before);
}

} // namespace
