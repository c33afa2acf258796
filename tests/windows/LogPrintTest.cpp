#include "Desk.h"
#include "support/TestFiles.h"
#include "windows/logbook/frm_OMKLogPrint.h"

/// "Reef" and "Bowl" have an entry in each log.
class LogPrint : public Desk
{
protected:
    LogPrint() : Desk(WaterTab)
    {
        const QString moment = "2026-04-05 09:30:00";
        for (const char *tank : {"r1", "b1"}) {
            addEntry(WaterTab, tank, moment, "ph", "8.25");
            addEntry(LivestockTab, tank, moment, "animalname", "'Tang'");
            addEntry(MaintenanceTab, tank, moment, "maintlogtask", "'Water Change'");
        }
        open("Reef");
    }
    void print(QRadioButton *frm_OMKLogPrint::*target, bool allTanks = false)
    {
        give<frm_OMKLogPrint>("printentries", 0, [&](frm_OMKLogPrint &w) {
            mouse::click(w.*target, QPoint(8, 8));
            if (allTanks)
                mouse::click(w.chk_PrintForAllTanks, QPoint(8, 8));
            mouse::click(w.cmd_ok);
        });
    }
    /// The tanks on the pages printed since the last call, with a bar between two documents.
    QString printedTanks()
    {
        QStringList documents;
        for (const PrintedDocument &document : std::exchange(keeper.doors.documents, {})) {
            EXPECT_TRUE(document.ended);
            QStringList tanks;
            for (const PrintedPage &page : document.pages)
                for (const char *tank : {"Reef", "Bowl"})
                    if (page.find(tank))
                        tanks << tank;
            documents << document.title + ':' + tanks.join(u',');
        }
        return documents.join(u'|');
    }
};

TEST_F(LogPrint, GoesToPrinterScreenOrFileFromTheLogOnShow)
{
    const QString logs[] = {"Water Quality Log", "Livestock Log", "Maintenance Log"};
    for (int tab = 0; tab < 3; ++tab) {
        SCOPED_TRACE(tab);
        hand::clickTab(*logbook->tab_logtype, tab);
        const QString document = "Ostrelmark " + logs[tab];
        keeper.doors.printers = {PrintDialogAnswer{2}};
        keeper.inNext<frm_OMKLogPrint>([](frm_OMKLogPrint &w) {
            hand::press(Qt::Key_Space); // the focus is on the option of the log that is shown
            mouse::click(w.cmd_ok);
        });
        hand::choose(*main, *main->mnu_File, "mnu_FilePrint");
        EXPECT_TRUE(isInFront(*main));
        EXPECT_EQ(printedTanks(), document + ":Reef|" + document + ":Reef");
        EXPECT_EQ(keeper.doors.printDialogs.back().title, "Print " + logs[tab]);
        EXPECT_EQ(keeper.doors.printDialogs.back().landscape, tab == 0);
        EXPECT_EQ(keeper.doors.targets.back().fileName, QString());

        print(&frm_OMKLogPrint::opt_Window, true);
        EXPECT_EQ(printedTanks(), document + ":Bowl,Reef");
        EXPECT_EQ(keeper.doors.previews, tab + 1);

        keeper.doors.files = {"/tmp/log.pdf"};
        print(&frm_OMKLogPrint::opt_File);
        EXPECT_EQ(printedTanks(), document + ":Reef");
        EXPECT_EQ(keeper.doors.targets.back().fileName, "/tmp/log.pdf");
        EXPECT_EQ(main->findChild<QLabel *>("sbStatusBar_1")->text(), document + ": sent to the printer.");
        EXPECT_FALSE(QApplication::overrideCursor());

        const QString sheet = keeper.folder.filePath("Log.CSV");
        keeper.doors.files = {sheet};
        print(&frm_OMKLogPrint::opt_File, tab == 1);
        EXPECT_EQ(keeper.doors.saveDialogs.back().filter, "PDF (*.pdf);;Spreadsheet (*.csv)");
        EXPECT_EQ(printedTanks(), "") << "a spreadsheet has no pages";
        const QByteArray csv = contentOf(keeper.folder.path())["Log.CSV"];
        EXPECT_EQ(csv.count("\r\n"), tab == 1 ? 3 : 2) << csv.toStdString();
        EXPECT_TRUE(csv.startsWith("\"tank\"") || csv.startsWith("tank,")) << csv.toStdString();
        EXPECT_TRUE(csv.contains("\"Reef\",2026-04-05,09:30:00")) << csv.toStdString();
    }
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(LogPrint, AnEmptyLogIsToldOnceAndACancelledDialogPrintsNothing)
{
    hand::clickTank(*logbook, "Pond");
    keeper.doors.printers = {PrintDialogAnswer{2}};
    print(&frm_OMKLogPrint::opt_Printer);
    EXPECT_EQ(keeper.told(), "0|Note!/64/No water quality entries were found for this tank. No log was printed.");
    hand::clickTank(*logbook, "All Tanks");
    EXPECT_FALSE(main->mnu_FilePrint->isEnabled());
    hand::clickTank(*logbook, "Reef");
    keeper.doors.printers.clear();
    for (const auto target : {&frm_OMKLogPrint::opt_Printer, &frm_OMKLogPrint::opt_File})
        print(target);
    give<frm_OMKLogPrint>("printentries", 0, [](auto &) { hand::press(Qt::Key_Escape); });
    EXPECT_EQ(keeper.told(), "0");
    EXPECT_TRUE(keeper.doors.documents.empty() && keeper.doors.targets.empty() && keeper.doors.previews == 0);
}
