#include <gtest/gtest.h>

#include "logbook/LogReports.h"
#include "platform/Printer.h"
#include "store/Database.h"
#include "store/NewDatabase.h"
#include "support/ScriptedDoors.h"

/// Two tanks, "angels" before "Reef" in the alphabet, on a printer that is read back.
class LogReports : public ::testing::Test
{
protected:
    LogReports()
    {
        CreateDatabase(folder.filePath("OM.MDB"));
        db = Database::OpenDatabase(folder.filePath("OM.MDB"));
        db->Execute(
            "INSERT INTO TANKLST (tankname, Tankdesc, tanksize, tankid) VALUES ('Reef', 'In the hall', 55, 'r1'), "
            "('angels', NULL, 20, 'a1'), ('Empty', 'No rows', 5, 'e1')");
    }
    void addWater(const char *tank, const QDate &date, double ph)
    {
        db->Execute(
            "INSERT INTO WATERLOG (tankname, logdate, logtime, ph, Ammonia, sg, custom2, Comment) VALUES (?, ?, "
            "'21:30:05', ?, 0.25, 1.0234, 1234.5, 'never printed')",
            {QString(tank), date, ph});
    }
    const std::vector<PrintedDocument> &print(LogTab log, const std::optional<QString> &tank, int copies = 1)
    {
        doors.printers = {PrintDialogAnswer{copies, 0, 0, "Laser", {}}};
        outcome = RunReport(MakeLogReport(log, *db, "DD.MM.YY", tank), PrintTo::Printer);
        return doors.documents;
    }

    QTemporaryDir folder;
    ScriptedDoors doors;
    std::unique_ptr<Database> db;
    PrintOutcome outcome = PrintOutcome::Cancelled;
};

namespace {

double bottomOfHeads(const PrintedPage &page, const char *head) { return page.find(head)->bottom; }

} // namespace

TEST_F(LogReports, WaterLogIsLandscapeWithEachColumnAtItsPlace)
{
    addWater("r1", QDate(2026, 4, 3), 8.25);
    const auto &document = print(WaterTab, "r1").at(0);
    EXPECT_TRUE(document.landscape);
    EXPECT_EQ(document.title, "Ostrelmark Water Quality Log");
    const PrintedPage &page = document.pages.at(0);
    EXPECT_EQ(page.find("Ostrelmark Water Quality Log")->font.size, 14);
    EXPECT_EQ(page.row(page.find("Reef")->y), "Tankname: |Reef");
    EXPECT_TRUE(page.find("Tanksize: 55 gal.      In the hall"));
    const char *const heads[] = {"Ammonia", "Nitrite", "Nitrate", "ph",    "s.g.",    "Temp",   "o2",
                                 "dkh",     "Calcium", "Copper",  "Redox", "Custom1", "Custom2"};
    const double fifteenths[] = {1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14};
    for (size_t i = 0; i < std::size(heads); ++i) {
        ASSERT_TRUE(page.find(heads[i])) << heads[i];
        EXPECT_DOUBLE_EQ(page.find(heads[i])->x, 1000 * fifteenths[i] / 15) << heads[i];
        EXPECT_TRUE(page.find(heads[i])->font.underline);
    }
    EXPECT_DOUBLE_EQ(page.find("8.250")->x, 1000 * 5 / 15.);
    EXPECT_EQ(page.row(page.find("8.250")->y), "0.250|8.250|1.023|1234.500");
    EXPECT_NEAR(page.find("03.04.26 -")->bottom, page.find("8.250")->bottom, 2);
    EXPECT_LT(page.find("09:30:05 PM")->right, 1000 / 15.) << "date and time stay in their column";
    EXPECT_FALSE(page.find("never printed"));
}

TEST_F(LogReports, FootStandsBelowEveryRowAndALongTankRunsOnWithoutHeadings)
{
    for (int i = 0; i < 300; ++i)
        addWater("r1", QDate(2025, 1, 1).addDays(i), 8);
    const auto &document = print(WaterTab, "r1").at(0);
    ASSERT_GT(document.pages.size(), 3u);
    const PrintedPage &first = document.pages[0];
    const double foot = 800 - 800 / 12.;
    EXPECT_EQ(first.lines, std::vector<double>{foot});
    EXPECT_GT(first.find("Report Created: 14.03.26")->y, foot);
    EXPECT_TRUE(first.find("Page number:1"));
    int rows = 0;
    for (const PrintedPage &page : document.pages) {
        for (const PrintedText &text : page.texts) {
            rows += text.text == "8.000";
            EXPECT_LE(text.bottom, 800);
            if (&page == &first && text.text == "8.000") {
                EXPECT_LE(text.bottom, foot);
            }
        }
        if (&page != &first) {
            EXPECT_TRUE(page.lines.empty() && !page.find("Ammonia") && !page.find("Ostrelmark Water Quality Log"));
        }
    }
    EXPECT_EQ(rows, 300);
}

TEST_F(LogReports, AllTanksComeByNameEachOnAPageOfItsOwn)
{
    addWater("r1", QDate(2026, 1, 2), 8);
    addWater("a1", QDate(2026, 1, 3), 7);
    addWater("a1", QDate(2026, 1, 2), 6);
    const auto &pages = print(WaterTab, {}).at(0).pages;
    ASSERT_EQ(pages.size(), 2u) << "a tank without entries leaves no page";
    EXPECT_TRUE(pages[0].find("angels") && pages[1].find("Reef"));
    EXPECT_LT(pages[0].find("6.000")->y, pages[0].find("7.000")->y);
    EXPECT_TRUE(pages[0].find("Page number:1") && pages[1].find("Page number:1"));
    EXPECT_TRUE(pages[0].find("Tanksize: 20 gal.      ")) << "a Null prints as nothing";
    EXPECT_EQ(pages[1].find("8.000")->font.size, 10);
}

TEST_F(LogReports, LivestockLogWrapsLongNamesAndPrintsNullsAsNothing)
{
    const QString longName = "Butterflyfish with a name of exactly fifty letters";
    db->Execute("INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname, quantity, Status) VALUES "
                "('r1', '2026-02-01', '00:05:00', ?, 12, 'A status that is thirty long..'), "
                "('r1', '2026-02-02', '12:00:00', 'Tang', 1.5, NULL)",
                {longName});
    const PrintedPage &page = print(LivestockTab, "r1").at(0).pages.at(0);
    EXPECT_EQ(page.row(page.find("Tang")->y), "02.02.26 - 12:00:00 PM|Tang|1.5");
    EXPECT_EQ(page.find("01.02.26 - 12:05:00 AM")->x, 0);
    EXPECT_EQ(page.find("12")->x, 600); // three quarters
    EXPECT_EQ(page.find("Status")->x, 700);
    for (const PrintedText &text : page.texts)
        if (text.y > bottomOfHeads(page, "Status") && text.y < 900) {
            EXPECT_LE(text.right, text.x >= 700   ? 800
                                  : text.x >= 600 ? 700
                                  : text.x >= 200 ? 600
                                                  : 200)
                << text.text.toStdString();
        }
    EXPECT_FALSE(print(LivestockTab, "r1").at(0).landscape);
}

TEST_F(LogReports, MaintenanceEntryTakesThreeLines)
{
    db->Execute(
        "INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime, maintlogtask, maintlogqty, maintlogunit, "
        "maintlogdesc, maintlognote) VALUES ('r1', '2026-02-01', '13:00:00', 'Water Change', 10, 'gallons', 'aged', "
        "'Said \"hello\"')");
    const PrintedPage &page = print(MaintenanceTab, "r1").at(0).pages.at(0);
    const double y = page.find("Water Change")->y;
    const double lineHeight = 10 * 100 / 72. * 1.2;
    EXPECT_EQ(page.row(y), "01.02.26 - 01:00:00 PM|Water Change");
    EXPECT_DOUBLE_EQ(page.find("10  gallons  aged")->y, y + lineHeight);
    EXPECT_DOUBLE_EQ(page.find("Said \"hello\"")->y, y + 2 * lineHeight);
    EXPECT_EQ(page.find("Said \"hello\"")->x, 200);
}

TEST_F(LogReports, AnEmptyLogSaysSoOncePrintsNothingAndLeavesTheOrientation)
{
    const struct
    {
        LogTab log;
        const char *text;
    } logs[] = {{WaterTab, "No water quality entries were found for this tank. No log was printed."},
                {LivestockTab, "No Livestock entries were found for this tank. No log was printed."},
                {MaintenanceTab, "No Maintenance entries were found for this tank. No log was printed."}};
    for (const auto &row : logs) {
        EXPECT_TRUE(print(row.log, "e1", 2).empty());
        EXPECT_EQ(outcome, PrintOutcome::Empty);
        EXPECT_EQ(EmptyLogText(row.log), row.text);
    }
}

TEST_F(LogReports, ALandscapeCopyLeavesTheNextDocumentUpright)
{
    addWater("r1", QDate(2026, 1, 2), 8);
    std::vector<PrintedDocument> documents;
    RecordedPages pages(documents);
    Printer page(pages, "Both");
    const Report water = MakeLogReport(WaterTab, *db, "MM/DD/YY", "r1");
    ASSERT_TRUE(water.open());
    water.print(page);
    EXPECT_FALSE(page.Landscape());
    page.Print("next");
    page.EndDoc();
    EXPECT_TRUE(documents[0].landscape && !documents[1].landscape);
    addWater("r1", QDate(2026, 1, 3), 7);
    water.print(page); // again, as a preview does: from a fresh query
    EXPECT_TRUE(documents[2].pages[0].find("8.000") && documents[2].pages[0].find("7.000"));
}
