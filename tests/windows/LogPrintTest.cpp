#include <QCheckBox>
#include <QRadioButton>

#include "Desk.h"
#include "logbook/frm_OMKLogPrint.h"

/// "Reef" and "Bowl" have an entry in each log.
class LogPrint : public Desk<frm_OMKLogPrint>
{
protected:
    LogPrint() : Desk(WaterTab)
    {
        for (const char *tank : {"r1", "b1"})
            for (const char *sql :
                 {"INSERT INTO WATERLOG (tankname, logdate, logtime, ph) VALUES ('%1', '2026-04-05', '09:30:00', 8.25)",
                  "INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname) "
                  "VALUES ('%1', '2026-04-05', '09:30:00', 'Tang')",
                  "INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime, maintlogtask) "
                  "VALUES ('%1', '2026-04-05', '09:30:00', 'Water Change')"})
                execute(QString(sql).arg(tank));
        open("Reef");
    }
    void print(const Action &action) { give("printentries", 0, action); }
    void showTab(int tab) { hand::clickTab(*logbook->tab_logtype, tab); }
    /// The tanks on the pages of the documents printed since last asked, documents between bars.
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

namespace {

/// By tab.
const struct
{
    const char *dialog, *document, *empty;
} logsPrinted[] = {{"Print Water Quality Log", "Ostrelmark Water Quality Log",
                    "64 Note!: No water quality entries were found for this tank. No log was printed."},
                   {"Print Livestock Log", "Ostrelmark Livestock Log",
                    "64 Note!: No Livestock entries were found for this tank. No log was printed."},
                   {"Print Maintenance Log", "Ostrelmark Maintenance Log",
                    "64 Note!: No Maintenance entries were found for this tank. No log was printed."}};

} // namespace

TEST_F(LogPrint, GoesToPrinterScreenOrFileFromTheLogOnShow)
{
    for (int tab = 0; tab < 3; ++tab) {
        SCOPED_TRACE(tab);
        showTab(tab);
        const QString document = logsPrinted[tab].document;
        keeper.doors.printers = {PrintDialogAnswer{2, 0, 0, "Laser", {}}};
        print([&](frm_OMKLogPrint &w) {
            EXPECT_EQ(w.opt_WaterQuality->isChecked(), tab == 0);
            EXPECT_EQ(w.opt_Livestock->isChecked(), tab == 1);
            EXPECT_EQ(w.opt_Maintenance->isChecked(), tab == 2);
            EXPECT_TRUE(w.opt_Printer->isChecked() && !w.chk_PrintForAllTanks->isChecked());
            mouse::click(w.cmd_ok);
        });
        EXPECT_EQ(printedTanks(), document + ":Reef|" + document + ":Reef");
        ASSERT_EQ(keeper.doors.printDialogs.size(), 1u);
        EXPECT_EQ(keeper.doors.printDialogs[0].title, logsPrinted[tab].dialog);
        EXPECT_EQ(keeper.doors.printDialogs[0].landscape, tab == 0);
        EXPECT_EQ(keeper.doors.targets.back().printerName, "Laser");

        print([&](frm_OMKLogPrint &w) {
            mouse::click(w.opt_Window, QPoint(8, 8));
            mouse::click(w.chk_PrintForAllTanks, QPoint(8, 8));
            mouse::click(w.cmd_ok);
        });
        EXPECT_EQ(printedTanks(), document + ":Bowl,Reef");
        EXPECT_EQ(std::exchange(keeper.doors.previews, 0), 1);

        keeper.doors.files = {"/tmp/log.pdf"};
        print([&](frm_OMKLogPrint &w) {
            mouse::click(w.opt_File, QPoint(8, 8));
            mouse::click(w.cmd_ok);
        });
        EXPECT_EQ(printedTanks(), document + ":Reef");
        ASSERT_EQ(keeper.doors.saveDialogs.size(), 1u);
        EXPECT_EQ(keeper.doors.saveDialogs[0].title, logsPrinted[tab].dialog);
        EXPECT_EQ(keeper.doors.targets.back().pdfFileName, "/tmp/log.pdf");
        keeper.doors.printDialogs.clear();
        keeper.doors.saveDialogs.clear();
    }
    EXPECT_EQ(told(0), "");
}

TEST_F(LogPrint, AnEmptyLogIsToldOnceAndACancelledDialogPrintsNothing)
{
    hand::clickTank(*logbook, "Pond");
    for (int tab = 0; tab < 3; ++tab) {
        showTab(tab);
        for (QRadioButton *frm_OMKLogPrint::*target :
             {&frm_OMKLogPrint::opt_Printer, &frm_OMKLogPrint::opt_Window, &frm_OMKLogPrint::opt_File}) {
            keeper.doors.printers = {PrintDialogAnswer{2, 0, 0, "Laser", {}}};
            keeper.doors.files = {"/tmp/log.pdf"};
            print([&](frm_OMKLogPrint &w) {
                mouse::click(w.*target, QPoint(8, 8));
                hand::press(Qt::Key_Return);
            });
            EXPECT_EQ(told(0), logsPrinted[tab].empty);
        }
    }
    hand::clickTank(*logbook, "Reef");
    keeper.doors.printers.clear();
    keeper.doors.files.clear();
    for (QRadioButton *frm_OMKLogPrint::*target : {&frm_OMKLogPrint::opt_Printer, &frm_OMKLogPrint::opt_File})
        print([&](frm_OMKLogPrint &w) {
            mouse::click(w.*target, QPoint(8, 8));
            mouse::click(w.cmd_ok);
        });
    const std::function<void(frm_OMKLogPrint &)> ways[] = {[](frm_OMKLogPrint &w) { mouse::click(w.CMD_Cancel); },
                                                           [](frm_OMKLogPrint &) { hand::press(Qt::Key_Escape); },
                                                           [](frm_OMKLogPrint &w) { w.close(); }};
    for (const auto &way : ways)
        print(way);
    EXPECT_EQ(told(0), "");
    EXPECT_TRUE(keeper.doors.documents.empty() && keeper.doors.targets.empty() && keeper.doors.previews == 0);
}

TEST_F(LogPrint, TheMenuPrintsALogAndIsDisabledInAllTanks)
{
    showTab(LivestockTab);
    EXPECT_EQ(main->mnu_FilePrint->text(), "&Print Entries...");
    keeper.doors.printers = {PrintDialogAnswer{1, 0, 0, "Laser", {}}};
    keeper.inNext<frm_OMKLogPrint>([&](frm_OMKLogPrint &w) {
        EXPECT_FALSE(main->mnu_FilePrint->isEnabled());
        EXPECT_EQ(main->mnu_FilePrint->text(), "&Print");
        mouse::click(w.opt_Maintenance, QPoint(8, 8)); // another log than the one on show
        mouse::click(w.cmd_ok);
    });
    hand::choose(*main, *main->mnu_File, "mnu_FilePrint");
    EXPECT_TRUE(isInFront(*main));
    EXPECT_EQ(printedTanks(), "Ostrelmark Maintenance Log:Reef");
    EXPECT_TRUE(main->mnu_FilePrint->isEnabled());
    EXPECT_EQ(main->mnu_FilePrint->text(), "&Print Entries...");
    hand::clickTank(*logbook, "All Tanks");
    EXPECT_FALSE(main->mnu_FilePrint->isEnabled());
    keeper.doors.printers = {PrintDialogAnswer{1, 0, 0, "Laser", {}}, PrintDialogAnswer{1, 0, 0, "Laser", {}}};
    for (const bool all : {false, true}) // the button stays, and there is no tank of that name
        print([all](frm_OMKLogPrint &w) {
            if (all)
                mouse::click(w.chk_PrintForAllTanks, QPoint(8, 8));
            mouse::click(w.cmd_ok);
        });
    EXPECT_EQ(told(0), logsPrinted[LivestockTab].empty);
    EXPECT_EQ(printedTanks(), "Ostrelmark Livestock Log:Bowl,Reef");
    EXPECT_FALSE(main->mnu_FilePrint->isEnabled());
}
