#include "shots/Album.h"
#include "shots/Plays.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>

#include "logic/logbook/LogKinds.h"
#include "platform/controls/MaskedBox.h"
#include "SampleData.h"
#include "windows/common/frm_Caltool.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_LivesMove.h"
#include "windows/logbook/frm_MaintAddEdit.h"
#include "windows/logbook/frm_OMKLogPrint.h"
#include "windows/logbook/frm_WaterAddEdit.h"
#include "windows/logbook/frm_Waterlog.h"
#include "windows/shell/frm_OMKMDIMain.h"

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
                 const std::pair<const char *, const char *> measured[] = {{"txt_nitrate", "8.5"},
                                                                           {"txt_ph", "8.2"},
                                                                           {"txt_sg", "1.025"},
                                                                           {"txt_dkh", "9"},
                                                                           {"txt_calcium", "415"}};
                 for (const auto &[box, value] : measured)
                     test.findChild<MaskedBox *>(QLatin1String(box))->setText(QLatin1String(value));
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
    main.setPanel(QStringLiteral("Ready.")); // instead of the place of the last printout
    album.take(main, QStringLiteral("main"));
}

void playLivestock(Album &album, frm_Waterlog &logbook)
{
    logbook.tab_logtype->setCurrentIndex(LivestockTab);
    addAnimal(logbook, QStringLiteral("Goby - Watchman, Yellow"), QStringLiteral("Active"), QStringLiteral("24"),
              [&album](frm_LivesAddEdit &window) {
                  window.txt_Comment->setPlainText(QStringLiteral("Eats frozen mysis from the first day on."));
                  album.take(window, QStringLiteral("livestock-entry"));
              });
    const std::pair<const char *, const char *> earlier[] = {
        {"Clown - Percula", "05/23/26"}, {"Shrimp - Cleaner", "05/30/26"}, {"Coral - Bubble", "06/06/26"}};
    for (const auto &[animal, day] : earlier)
        addAnimal(logbook, QLatin1String(animal), QStringLiteral("Active"), QStringLiteral("18.5"),
                  [day = day](frm_LivesAddEdit &window) { window.txt_DateAdded->setText(QLatin1String(day)); });
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

namespace {

struct SampleWork
{
    const char *task, *quantity, *unit, *notes;
};

const SampleWork sampleWork[] = {
    {"Water Change", "10", "gallons", "Salt mixed a day ahead, heated to 78 degrees."},
    {"Filter Clean", "1", " ", "Rinsed the sponge in old tank water."},
    {"Additives Added", "20", "ml", "Calcium."},
};

} // namespace

void playMaintenance(Album &album, frm_Waterlog &logbook, QDateTime &clock)
{
    logbook.tab_logtype->setCurrentIndex(MaintenanceTab);
    bool first = true;
    for (const SampleWork &work : sampleWork) {
        clock = clock.addSecs(60);
        inDialog([&logbook] { logbook.Add_Entries(); },
                 [&] {
                     auto &window = Form<frm_MaintAddEdit>();
                     window.lst_mainttasklist->setEditText(QLatin1String(work.task));
                     window.txt_quantity->setText(QLatin1String(work.quantity));
                     window.lst_unit->setEditText(QLatin1String(work.unit));
                     window.txt_maintlognotes->setPlainText(QLatin1String(work.notes));
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
