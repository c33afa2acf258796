#include "Desk.h"
#include "support/TestFiles.h"
#include "windows/logbook/frm_OMKLogPrint.h"

/// "Reef" and "Bowl" have an entry in each log.
class LogPrint : public Desk
{
protected:
    LogPrint()
    {
        const QString moment = "2026-04-05 09:30:00";
        for (const char *tank : {"r1", "b1"}) {
            addEntry(WaterTab, tank, moment, "ph", "8.25");
            addEntry(LivestockTab, tank, moment, "animalname", "'Tang'");
            addEntry(MaintenanceTab, tank, moment, "maintlogtask", "'Water Change'");
        }
        open("Reef");
    }
    /// Prints from the log on show, and returns the title of each document with the tanks on its pages.
    QString print(QRadioButton *frm_OMKLogPrint::*target, bool allTanks = false)
    {
        give<frm_OMKLogPrint>("printentries", 0, [&](frm_OMKLogPrint &w) {
            mouse::click(w.*target, QPoint(8, 8));
            if (allTanks)
                mouse::click(w.chk_PrintForAllTanks, QPoint(8, 8));
            mouse::click(w.cmd_ok);
        });
        QString printed;
        for (const PrintedDocument &document : std::exchange(keeper.doors.documents, {})) {
            printed += document.title + ':';
            for (const PrintedPage &page : document.pages)
                for (const char *tank : {"Reef", "Bowl"})
                    printed += page.find(tank) ? tank : "";
        }
        return printed;
    }
};

TEST_F(LogPrint, GoesToPrinterScreenOrFileFromTheLogOnShow)
{
    const QString logs[] = {"Water Quality Log", "Livestock Log", "Maintenance Log"};
    for (int tab = 0; tab < 3; ++tab) {
        SCOPED_TRACE(tab);
        hand::clickTab(*logbook->tab_logtype, tab);
        const QString document = "Ostrelmark " + logs[tab] + ':';
        keeper.doors.printers = {PrintDialogAnswer{1}};
        EXPECT_EQ(print(&frm_OMKLogPrint::opt_Printer), document + "Reef");
        EXPECT_EQ(keeper.doors.printDialogs.back().title, "Print " + logs[tab]);
        EXPECT_EQ(keeper.doors.printDialogs.back().landscape, tab == 0);
        EXPECT_EQ(print(&frm_OMKLogPrint::opt_Window, true), document + "BowlReef");
        EXPECT_EQ(keeper.doors.previews, tab + 1);
        const QString sheet = keeper.folder.filePath("Log.CSV");
        keeper.doors.files = {"log.pdf", sheet};
        EXPECT_EQ(print(&frm_OMKLogPrint::opt_File), document + "Reef");
        EXPECT_EQ(keeper.doors.targets.back().fileName, "log.pdf");
        EXPECT_EQ(keeper.doors.saveDialogs.back().filter, "PDF (*.pdf);;Spreadsheet (*.csv)");
        EXPECT_EQ(print(&frm_OMKLogPrint::opt_File, tab == 1), "") << "a spreadsheet has no pages";
        const QByteArray csv = contentOf(keeper.folder.path())["Log.CSV"];
        EXPECT_EQ(csv.count("\r\n"), tab == 1 ? 3 : 2) << csv.toStdString();
        EXPECT_TRUE(csv.contains("\"Reef\",2026-04-05,09:30:00")) << csv.toStdString();
    }
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(LogPrint, AnEmptyLogIsToldOnceAndACancelledDialogPrintsNothing)
{
    hand::clickTank(*logbook, "Pond");
    keeper.doors.printers = {PrintDialogAnswer{1}};
    EXPECT_EQ(print(&frm_OMKLogPrint::opt_Printer), "");
    EXPECT_EQ(keeper.told(), "0|Note!/64/No water quality entries were found for this tank. No log was printed.");
    hand::clickTank(*logbook, "Reef");
    for (const auto target : {&frm_OMKLogPrint::opt_Printer, &frm_OMKLogPrint::opt_File})
        EXPECT_EQ(print(target), "");
    EXPECT_EQ(keeper.told(), "0");
}
