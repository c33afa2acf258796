// omk_shots DIR [--dark] [--scale N]: plays a day on sample data through the real windows, off-screen, and leaves a PNG
// of each window and a PDF of each printout in DIR. Prints their names. Needs no display.
#include <cstdio>
#include <functional>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

#include "common/frm_Caltool.h"
#include "logbook/frm_LivesAddEdit.h"
#include "logbook/frm_LivesMove.h"
#include "logbook/frm_MaintAddEdit.h"
#include "logbook/frm_OMKLogPrint.h"
#include "logbook/frm_WaterAddEdit.h"
#include "logbook/frm_Waterlog.h"
#include "platform/Application.h"
#include "platform/DesktopDoors.h"
#include "platform/MaskedBox.h"
#include "platform/SettingsStore.h"
#include "reminders/frm_Maintsched.h"
#include "reminders/frm_SchedNewAddEdit.h"
#include "reminders/frm_Schedule.h"
#include "SampleData.h"
#include "shell/frm_OMKaboutbox.h"
#include "shell/frm_OMKCredits.h"
#include "shell/frm_OMKMDIMain.h"
#include "shell/frm_OMKOptions.h"
#include "shell/MenuEntry.h"
#include "store/NewDatabase.h"
#include "tanks/frm_TankAddNew.h"
#include "tanks/frm_TankMaint.h"

namespace {

class Album
{
public:
    explicit Album(const QString &folder) : m_folder(folder) { QDir().mkpath(folder); }
    void take(QWidget &window, const QString &name)
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        const QString file = m_folder.filePath(name + u".png");
        if (window.grab().save(file))
            std::printf("%s\n", qPrintable(file));
        else
            m_failed = true;
    }
    /// Where a printout goes, its name made one of files; told like a picture.
    QString path(QString name) const
    {
        const QString file = m_folder.filePath(name.replace(u' ', u'-').toLower());
        std::printf("%s\n", qPrintable(file));
        return file;
    }
    bool failed() const { return m_failed; }

private:
    QDir m_folder;
    bool m_failed = false;
};

/// The desktop with the clock standing still, settings of its own, and each box photographed and answered with its
/// default button.
class ShotDoors : public DesktopDoors
{
public:
    ShotDoors(Album &album, const QString &settingsFile) : m_album(album), m_settings(settingsFile) {}
    QDateTime clock{QDate(2026, 6, 20), QTime(18, 30)};
    QDateTime now() override { return clock; }
    SettingsStore &settings() override { return m_settings; }
    void beep() override {}
    std::optional<QString> saveDialog(const SaveDialogRequest &request) override
    {
        return m_album.path(request.fileName);
    }
    std::optional<PrintDialogAnswer> printDialog(const PrintDialogRequest &request) override
    {
        PrintDialogAnswer answer;
        answer.pdfFileName = m_album.path(request.documentName + u".pdf");
        return answer;
    }
    MsgBoxAnswer msgBox(const MsgBoxRequest &request) override
    {
        const QString name = QStringLiteral("box-%1").arg(++m_boxes, 2, 10, QLatin1Char('0'));
        QTimer::singleShot(0, [this, name] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                m_album.take(*box, name);
                box->defaultButton()->click();
            }
        });
        return DesktopDoors::msgBox(request);
    }

private:
    Album &m_album;
    SettingsStore m_settings;
    int m_boxes = 0;
};

/// What to do in the next dialog while `start` waits in it.
void inDialog(const std::function<void()> &start, const std::function<void()> &inside)
{
    QTimer::singleShot(0, inside);
    start();
}

void addTank(Album &album, const QString &name, const QString &description, const QString &notes, bool picture)
{
    auto &dialog = Form<frm_TankAddNew>();
    inDialog([&dialog] { dialog.AddNewTank(); },
             [&] {
                 dialog.txt_tankname->setText(name);
                 dialog.txt_long_desc->setText(description);
                 dialog.txt_tanknotes->setPlainText(notes);
                 if (picture)
                     album.take(dialog, QStringLiteral("tank-new"));
                 dialog.cmd_OK->click();
             });
}

void playTanks(Album &album)
{
    addTank(album, QStringLiteral("Reef"), QStringLiteral("Mixed reef in the living room"),
            QStringLiteral("Skimmer, two return pumps, 4 x 54 W T5.\nSet up in March."), true);
    addTank(album, QStringLiteral("Angels"), QStringLiteral("Planted tank with angelfish"), {}, false);
    addTank(album, QStringLiteral("Garden pond"), QStringLiteral("Goldfish and lilies"), {}, false);
    auto &list = Form<frm_TankMaint>();
    inDialog([&list] { list.Show_List(); },
             [&] {
                 list.lst_tanklist->setCurrentRow(2);
                 album.take(list, QStringLiteral("tank-list"));
                 list.cmd_ok->click();
             });
}

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

using ComposeReminder = std::function<void(frm_SchedNewAddEdit &)>;

struct SampleReminder
{
    const char *task;
    ComposeReminder compose;
};

/// One of each pattern.
const SampleReminder sampleReminders[] = {
    {"Feed frozen food", [](frm_SchedNewAddEdit &w) { w.txt_DailyDays->setText(QStringLiteral("2")); }},
    {"Water change, 10 gallons",
     [](frm_SchedNewAddEdit &w) {
         w.opt_Weekly->setChecked(true);
         w.chk_WeeklyDay[6]->setChecked(true);
     }},
    {"Rinse the filter sponge",
     [](frm_SchedNewAddEdit &w) {
         w.opt_Monthly->setChecked(true);
         w.Opt_MonthlyXWeekdayofEveryMonth->setChecked(true);
         w.cbo_MonthlyWeekday->setCurrentIndex(0);
     }},
    {"Replace the UV lamp",
     [](frm_SchedNewAddEdit &w) {
         w.opt_Yearly->setChecked(true);
         w.cbo_YearlyMonth->setCurrentIndex(8);
         w.txt_YearlyDay->setText(QStringLiteral("15"));
     }},
    {"Fetch the new clownfish",
     [](frm_SchedNewAddEdit &w) {
         w.opt_Once->setChecked(true);
         w.txt_OnceDate->setText(QStringLiteral("06/27/26"));
     }},
};

void playReminders(Album &album, frm_OMKMDIMain &main)
{
    main.mnu_ToolsRemindersAddEdit_Click();
    auto &list = Form<frm_Maintsched>();
    for (const SampleReminder &reminder : sampleReminders) {
        inDialog([&list] { list.cmd_AddTask->click(); },
                 [&] {
                     auto &editor = Form<frm_SchedNewAddEdit>();
                     editor.txt_TaskDescription->setText(QLatin1String(reminder.task));
                     reminder.compose(editor);
                     const QString pattern = editor.panels->currentWidget()->objectName().mid(4).toLower();
                     if (pattern == u"monthly")
                         editor.cmd_PreviewSchedule->click();
                     album.take(editor, u"reminder-" + pattern);
                     editor.cmd_OK->click();
                 });
    }
    list.lstv_MaintSched->Select(2);
    album.take(list, QStringLiteral("reminders"));
    main.mnu_ToolsReminderSchedule_Click();
    auto &schedule = Form<frm_Schedule>();
    schedule.cmd_Generate->click();
    album.take(schedule, QStringLiteral("schedule"));
    schedule.Print_Schedule();
    album.take(main, QStringLiteral("main-reminders"));
    schedule.parentWidget()->close();
    list.parentWidget()->close();
}

void playOptions(Album &album, frm_OMKMDIMain &main)
{
    auto &options = Form<frm_OMKOptions>();
    inDialog([&main] { main.mnu_ViewOptions_Click(); },
             [&] {
                 for (int tab = 0; tab < options.SSTab1->count(); ++tab) {
                     options.SSTab1->setCurrentIndex(tab);
                     album.take(options, QStringLiteral("options-%1").arg(tab + 1));
                 }
                 options.cmdCancel->click();
             });
}

void playAbout(Album &album, frm_OMKMDIMain &main)
{
    inDialog([&main] { main.mnu_HelpAbout_Click(); },
             [&album] {
                 auto &about = Form<frm_OMKaboutbox>();
                 album.take(about, QStringLiteral("about"));
                 about.reject();
             });
    auto &credits = Form<frm_OMKCredits>();
    inDialog([&credits] { credits.ShowCredits(); },
             [&album, &credits] {
                 album.take(credits, QStringLiteral("credits"));
                 credits.reject();
             });
}

void goDark()
{
    QPalette palette(QColor(0x35, 0x37, 0x3b), QColor(0x2b, 0x2d, 0x30));
    palette.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x24));
    palette.setColor(QPalette::AlternateBase, QColor(0x27, 0x29, 0x2c));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, QColor(0xe6, 0xe6, 0xe6));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x83, 0x88));
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xa0));
    QApplication::setPalette(palette);
}

/// A screen that is big enough for every window: the off-screen one is 800 x 800.
void setBigScreen(const QString &folder)
{
    QFile file(folder + u"/screen.json");
    if (file.open(QIODevice::WriteOnly))
        file.write(
            R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false, "screens": [{"name": "big", "x": 0, "y": 0,
            "width": 3840, "height": 2400, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toUtf8());
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: omk_shots DIR [--dark] [--scale N]\n");
        return 2;
    }
    bool dark = false;
    for (int i = 2; i < argc; ++i) {
        const QByteArray argument = argv[i];
        dark = dark || argument == "--dark";
        if (argument == "--scale" && i + 1 < argc)
            qputenv("QT_SCALE_FACTOR", argv[i + 1]);
    }
    const QTemporaryDir folder;
    setBigScreen(folder.path());
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type != QtWarningMsg || !text.startsWith(u"This plugin does not support"))
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    Application application(argc, argv);
    if (dark)
        goDark();
    Album album(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
    ShotDoors doors(album, folder.filePath(QStringLiteral("OMK.ini")));
    Doors::install(&doors);
    CreateDatabase(folder.filePath(QStringLiteral("OM.MDB")));
    QDir::setCurrent(folder.path());
    Globals globals;
    globals.splashMilliseconds = 0;
    Forms forms(globals);
    auto &main = Form<frm_OMKMDIMain>();
    main.MDIForm_Load();
    playTanks(album);
    main.CheckTanks();
    playLogbook(album, main, globals);
    auto &logbook = Form<frm_Waterlog>();
    playLivestock(album, logbook);
    playMaintenance(album, logbook, doors.clock);
    playPrinting(album, logbook);
    playReminders(album, main);
    playOptions(album, main);
    playAbout(album, main);
    return album.failed() ? 1 : 0;
}
