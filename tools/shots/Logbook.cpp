#include "shots/Album.h"
#include "shots/Plays.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>

#include "common/frm_Caltool.h"
#include "logbook/frm_LivesAddEdit.h"
#include "logbook/frm_LivesMove.h"
#include "logbook/frm_MaintAddEdit.h"
#include "logbook/frm_OMKLogPrint.h"
#include "logbook/frm_WaterAddEdit.h"
#include "logbook/frm_Waterlog.h"
#include "logbook/LogTab.h"
#include "platform/MaskedBox.h"
#include "SampleData.h"
#include "shell/frm_OMKMDIMain.h"

namespace {

void addAnimal(frm_Waterlog &logbook, const QString &animal, const QString &status, const QString &price,
               const std::function<void(frm_LivesAddEdit &)> &before)
{
    inDialog([&logbook] { logbook.Add_Entries(); },
             [&] {
                 auto &shown = Form<frm_LivesAddEdit>();
                 shown.lst_AnimalList->setEditText(animal);
                 shown.lst_Status->setEditText(status);
                 shown.lst_where->setEditText(QStringLiteral("Harbour Aquatics"));
                 shown.txt_pricepaid->setText(price);
                 before(shown);
                 shown.cmd_OK->click();
             });
}

} // namespace

void playLogbook(Album &album, frm_OMKMDIMain &main, Globals &globals)
{
    Recordset reef =
        globals.gDatabase->OpenRecordset(QStringLiteral("SELECT tankid FROM tanklst WHERE tankname = 'Reef'"));
    AddSampleWaterTests(*globals.gDatabase, reef[QStringLiteral("tankid")].text(), 60, QDate(2026, 4, 21), 1440, true);
    main.mnu_ToolsLogbook_Click();
    auto &logbook = Form<frm_Waterlog>();
    QTreeWidgetItem *root = logbook.TreeView1->topLevelItem(0);
    logbook.TreeView1->setCurrentItem(root->child(root->childCount() - 1));
    auto &test = Form<frm_WaterAddEdit>();
    inDialog([&logbook] { logbook.Add_Entries(); },
             [&] {
                 test.findChild<MaskedBox *>(QStringLiteral("txt_nitrate"))->setText(QStringLiteral("7.5"));
                 test.findChild<MaskedBox *>(QStringLiteral("txt_calcium"))->setText(QStringLiteral("415"));
                 test.txt_Comment->setPlainText(QStringLiteral("After the water change. All animals well."));
                 album.take(test, QStringLiteral("water-test"));
                 inDialog([&test] { test.cmd_Caldate->click(); },
                          [&] {
                              auto &calendar = Form<frm_Caltool>();
                              album.take(calendar, QStringLiteral("calendar"));
                              calendar.close();
                          });
                 test.cmd_OK->click();
             });
    logbook.lstv_WaterLog->Select(61);
    album.take(logbook, QStringLiteral("logbook"));
    album.take(main, QStringLiteral("main"));
}

void playLivestock(Album &album, frm_Waterlog &logbook)
{
    logbook.tab_logtype->setCurrentIndex(LivestockTab);
    addAnimal(logbook, QStringLiteral("Tang - Yellow"), QStringLiteral("Active"), QStringLiteral("45"),
              [&album](frm_LivesAddEdit &window) {
                  window.txt_Comment->setPlainText(QStringLiteral("Eats nori from the first day on."));
                  album.take(window, QStringLiteral("livestock-entry"));
              });
    for (const char *animal : {"Clown - Percula", "Shrimp - Cleaner", "Coral - Bubble"})
        addAnimal(logbook, QLatin1String(animal), QStringLiteral("Active"), QStringLiteral("18.5"),
                  [](frm_LivesAddEdit &) {});
    logbook.lstv_Livestock->Select(1);
    album.take(logbook, QStringLiteral("logbook-livestock"));
    inDialog([&logbook] { logbook.Move_Entries(); },
             [&album] {
                 auto &move = Form<frm_LivesMove>();
                 move.lst_tanklist->setCurrentRow(0);
                 album.take(move, QStringLiteral("livestock-move"));
                 move.cmd_Cancel->click();
             });
}

void playMaintenance(Album &album, frm_Waterlog &logbook, QDateTime &clock)
{
    logbook.tab_logtype->setCurrentIndex(MaintenanceTab);
    bool first = true;
    for (const char *task : {"Water Change", "Filter Clean", "Additives Added"}) {
        clock = clock.addSecs(60);
        inDialog([&logbook] { logbook.Add_Entries(); },
                 [&] {
                     auto &window = Form<frm_MaintAddEdit>();
                     window.lst_mainttasklist->setEditText(QLatin1String(task));
                     window.txt_quantity->setText(QStringLiteral("10"));
                     window.lst_unit->setEditText(QStringLiteral("gallons"));
                     window.txt_maintlognotes->setPlainText(
                         QStringLiteral("Water aged for two days, heated to 78 degrees."));
                     if (std::exchange(first, false))
                         album.take(window, QStringLiteral("maintenance-entry"));
                     window.cmd_OK->click();
                 });
    }
    album.take(logbook, QStringLiteral("logbook-maintenance"));
}

void playPrinting(Album &album, frm_Waterlog &logbook)
{
    for (const int tab : {WaterTab, LivestockTab, MaintenanceTab}) {
        logbook.tab_logtype->setCurrentIndex(tab);
        inDialog([&logbook] { logbook.Print_Entries(); },
                 [&album, tab] {
                     auto &window = Form<frm_OMKLogPrint>();
                     window.opt_File->setChecked(true);
                     if (tab == WaterTab)
                         album.take(window, QStringLiteral("log-printing"));
                     window.cmd_ok->click();
                 });
    }
}
