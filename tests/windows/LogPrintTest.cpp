#include <QCheckBox>
#include <QRadioButton>

#include "Desk.h"
#include "logbook/frm_OMKLogPrint.h"

/// "Reef" and "Bowl" have an entry in each log.
class LogPrint : public Desk
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
    void print(const std::function<void(frm_OMKLogPrint &)> &action) { give("printentries", 0, action); }
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

TEST_F(LogPrint, GoesToPrinterScreenOrFileFromTheLogOnShow)
{
    const QString logs[] = {"Water Quality Log", "Livestock Log", "Maintenance Log"};
    for (int tab = 0; tab < 3; ++tab) {
        SCOPED_TRACE(tab);
        hand::clickTab(*logbook->tab_logtype, tab);
        const QString document = "Ostrelmark " + logs[tab];
        keeper.doors.printers = {PrintDialogAnswer{2, 0, 0, "Laser", {}}};
        keeper.inNext<frm_OMKLogPrint>([](frm_OMKLogPrint &w) { mouse::click(w.cmd_ok); });
        hand::choose(*main, *main->mnu_File, "mnu_FilePrint");
        EXPECT_TRUE(isInFront(*main));
        EXPECT_EQ(printedTanks(), document + ":Reef|" + document + ":Reef");
        EXPECT_EQ(keeper.doors.printDialogs.back().title, "Print " + logs[tab]);
        EXPECT_EQ(keeper.doors.printDialogs.back().landscape, tab == 0);
        EXPECT_EQ(keeper.doors.targets.back().printerName, "Laser");

        print([](frm_OMKLogPrint &w) {
            mouse::click(w.opt_Window, QPoint(8, 8));
            mouse::click(w.chk_PrintForAllTanks, QPoint(8, 8));
            mouse::click(w.cmd_ok);
        });
        EXPECT_EQ(printedTanks(), document + ":Bowl,Reef");
        EXPECT_EQ(keeper.doors.previews, tab + 1);

        keeper.doors.files = {"/tmp/log.pdf"};
        print([](frm_OMKLogPrint &w) {
            mouse::click(w.opt_File, QPoint(8, 8));
            mouse::click(w.cmd_ok);
        });
        EXPECT_EQ(printedTanks(), document + ":Reef");
        EXPECT_EQ(keeper.doors.targets.back().pdfFileName, "/tmp/log.pdf");
    }
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(LogPrint, AnEmptyLogIsToldOnceAndACancelledDialogPrintsNothing)
{
    hand::clickTank(*logbook, "Pond");
    keeper.doors.printers = {PrintDialogAnswer{2, 0, 0, "Laser", {}}};
    print([](frm_OMKLogPrint &) { hand::press(Qt::Key_Return); });
    EXPECT_EQ(keeper.told(), "0|Note!/64/No water quality entries were found for this tank. No log was printed.");
    hand::clickTank(*logbook, "All Tanks");
    EXPECT_FALSE(main->mnu_FilePrint->isEnabled());
    hand::clickTank(*logbook, "Reef");
    keeper.doors.printers.clear();
    for (QRadioButton *frm_OMKLogPrint::*target : {&frm_OMKLogPrint::opt_Printer, &frm_OMKLogPrint::opt_File})
        print([&](frm_OMKLogPrint &w) {
            mouse::click(w.*target, QPoint(8, 8));
            mouse::click(w.cmd_ok);
        });
    print([](frm_OMKLogPrint &) { hand::press(Qt::Key_Escape); });
    EXPECT_EQ(keeper.told(), "0");
    EXPECT_TRUE(keeper.doors.documents.empty() && keeper.doors.targets.empty() && keeper.doors.previews == 0);
}
