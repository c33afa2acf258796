// Tests of the printed logs: what is printed where, and on which page.
#include "logic/logbook/LogReports.h"
#include "platform/core/Printer.h"
#include "store/StoreFixture.h"

/// Two tanks, and a printer whose pages are read back.
struct LogReports : StoreTest
{
    LogReports()
    {
        db->Execute("INSERT INTO TANKLST (tankname, Tankdesc, tanksize, tankid) VALUES "
                    "('Reef', 'In the hall', 55, 'r1'), ('angels', NULL, 20, 'a1')");
    }
    void addWater(const QDate &date)
    {
        db->Execute(
            "INSERT INTO WATERLOG (tankname, logdate, logtime, ph, Ammonia, sg, custom2, Comment) VALUES ('r1', ?, "
            "'21:30:05', 8, 0.25, 1.0234, 1234.5, 'never printed')",
            {date});
    }
    const PrintedDocument &print(LogTab log)
    {
        doors.printers = {PrintDialogAnswer{1}};
        RunReport(MakeLogReport(log, *db, "DD.MM.YY", "r1"), PrintTarget::Printer, [](const QString &) {});
        return doors.documents.back();
    }
};

TEST_F(LogReports, EachTankHasItsNameAndItsSizeAndEachValueStandsUnderItsHeading)
{
    addWater(QDate(2026, 4, 3));
    db->Execute("INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname, quantity, Status) VALUES ('r1', "
                "'2026-04-03', '21:30:05', 'Goby', 3, 'Active')");
    db->Execute("INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime, maintlogtask, maintlogqty, "
                "maintlogunit, maintlogdesc, maintlognote) VALUES ('r1', '2026-04-03', '21:30:05', 'Siphon', 10, "
                "'gallons', 'weekly', 'clear')");
    const std::tuple<LogTab, const char *, const char *> rows[] = {
        {WaterTab, "Ammonia", "0.250"},
        {WaterTab, "s.g.", "1.023"},
        {LivestockTab, "Animal", "Goby"},
        {LivestockTab, "Quantity", "3"},
        {LivestockTab, "Status", "Active"},
        {MaintenanceTab, "Task Performed", "10  gallons  weekly"},
        {MaintenanceTab, "Task Performed", "clear"},
    };
    for (const auto &[log, heading, value] : rows) {
        const PrintedDocument &document = print(log);
        const PrintedPage &page = document.pages.at(0);
        ASSERT_TRUE(page.find(heading) && page.find(value)) << value;
        EXPECT_EQ(page.find(value)->x, page.find(heading)->x) << value;
        EXPECT_EQ(document.landscape, log == WaterTab);
        EXPECT_EQ(page.find("Reef")->y, page.find("Tankname: ")->y);
        EXPECT_TRUE(page.find("Tanksize: 55 gal.      In the hall"));
    }
    const PrintedPage &water = print(WaterTab).pages.at(0);
    EXPECT_LT(water.find("09:30:05 PM")->right, water.find("Ammonia")->x) << "date and time stay in their column";
}

TEST_F(LogReports, ARowWithoutItsMomentOrItsNumbersStopsNoReport)
{
    for (const QString moment : {"NULL, '21:30:05'", "'2026-04-03', NULL", "'soon', 'at noon'"}) {
        db->Execute("INSERT INTO LIVESTOCK (tankname, dateadded, timeadded) VALUES ('r1', " + moment + ')');
        db->Execute("INSERT INTO WATERLOG (tankname, logdate, logtime, ph) VALUES ('r1', " + moment + ", 'low')");
        db->Execute("INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime) VALUES ('r1', " + moment + ')');
    }
    for (const LogTab log : {WaterTab, LivestockTab, MaintenanceTab}) {
        const PrintedPage &page = print(log).pages.at(0);
        for (const char *part : {"09:30:05 PM", "03.04.26", "soon", "at noon"})
            EXPECT_EQ(std::ranges::count_if(page.texts, [&](const PrintedText &t) { return t.text.contains(part); }), 1)
                << log << ' ' << part;
    }
}

/// Pages that are no longer wanted after the first, as of a preview that was turned.
struct ImpatientPages : RecordedPages
{
    using RecordedPages::RecordedPages;
    void newPage() override { throw 1; }
};

TEST_F(LogReports, ALongTankRunsOnWithoutHeadingsAndItsReportBeginsAgainAfterItWasGivenUp)
{
    for (int i = 0; i < 300; ++i)
        addWater(QDate(2025, 1, 1).addDays(i));
    const Report report = MakeLogReport(WaterTab, *db, "DD.MM.YY", {});
    ASSERT_TRUE(report.open());
    ImpatientPages impatient(doors.documents);
    Printer first(impatient, "Log");
    EXPECT_THROW(report.print(first), int);
    RecordedPages patient(doors.documents);
    Printer second(patient, "Log");
    qint64 told = 0;
    second.Progress = [&told](qint64 done, qint64 of) { EXPECT_TRUE(done == ++told && of == 300); };
    report.print(second);
    const auto &pages = doors.documents.back().pages;
    ASSERT_GT(pages.size(), 3u);
    const double foot = 800 - 800 / 12.;
    EXPECT_GT(pages[0].find("Report Created: 14.03.26")->y, foot);
    EXPECT_TRUE(pages[0].find("Page number:1")->font.italic && !pages[0].find("8.000")->font.italic);
    int rows = 0;
    for (const PrintedPage &page : pages) {
        const bool first = &page == &pages.front();
        for (const PrintedText &text : page.texts) {
            rows += text.text == "8.000";
            EXPECT_LE(text.bottom, first && text.text == "8.000" ? foot : 800);
        }
        EXPECT_EQ(page.find("Ammonia") != nullptr, first);
    }
    EXPECT_EQ(rows, 300);
}
