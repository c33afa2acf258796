// The start of the main window: the database, the options, the reminders, the splash and the first tip.
#include <QApplication>
#include <QDir>
#include <QStatusBar>

#include "logic/shell/Options.h"
#include "platform/controls/EmptyText.h"
#include "platform/core/Doors.h"
#include "store/Version.h"
#include "upgrade/frm_OMKupgrade.h"
#include "upgrade/UpgradeDatabase.h"
#include "windows/shell/frm_OMKaboutbox.h"
#include "windows/shell/frm_OMKMDIMain.h"
#include "windows/shell/MenuEntry.h"

namespace {

const QString noTankText = QStringLiteral("You have no tanks set up in Ostrelmark for Windows. You must set-up at "
                                          "least one tank before you can use the logging, "
                                          "graphing, or data-import tools in Ostrelmark. Set up a tank by clicking on "
                                          "the \"Setup / Manage Tanks\" button on the "
                                          "main menu.");

// What to do where no child is open.
const QString setUpFirst =
    QStringLiteral("Set up your first tank: choose Tank Setup in the Tools menu, or press Ctrl+T.");
const QString openLogbook = QStringLiteral("Open the logbook: choose Logbook in the Tools menu, or press Ctrl+L.");

/// If the settings cannot be written, a message says so and the start goes on: a setting must not keep keepers from
/// their data.
void saveAtStart(const QString &key, const QString &value)
{
    try {
        SaveSetting(key, value);
    } catch (const RuntimeFailure &failure) {
        Beep();
        MsgBox(failure.description() +
                   u"\n\nYour data is not touched by this; only settings that you change are not kept.",
               vbExclamation, QStringLiteral("Settings"));
    }
}

} // namespace

void frm_OMKMDIMain::MDIForm_Load()
{
    mnu_FilePrint->Enabled(false);
    g.gDatabaseName = QStringLiteral("OM.MDB");
    Form<frm_OMKaboutbox>();
    g.gCurrentDir = QDir::currentPath();
    g.gDatabase = Database::OpenDatabase(g.gDatabaseName);
    CheckDatabaseVersion();
    constexpr int milliseconds = 30'000; // over the panel, which the next progress would write over
    g.gDatabase->KeepDailyCopies([this](const QString &words) { statusBar()->showMessage(words, milliseconds); });
    ReadOptions(g);
    g.gGraphPageSize = 20;
    QApplication::processEvents();
    Top20List();
    EnableTankButtons(); // before the splash and the tip, which show what stands in the empty work area
    show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // paints the window before the splash
    showSplash();
    if (tipIsDue() && !isEnding())
        mnu_HelpTod_Click();
    if (!isEnding())
        CheckTanks();
}

void frm_OMKMDIMain::CheckDatabaseVersion()
{
    g.gDbVersion = ReadDatabaseVersion(*g.gDatabase);
    if (g.gDbVersion == presentDatabaseVersion)
        return;
    frm_OMKupgrade(UpgradeWork(g.gDatabase, g.gDatabaseName, g.gDbVersion)).Run();
}

void frm_OMKMDIMain::showSplash()
{
    g.gSplashMode = true;
    Form<frm_OMKaboutbox>().ShowBox();
    g.gSplashMode = false;
}

bool frm_OMKMDIMain::tipIsDue()
{
    const QString stored = GetSetting(QStringLiteral("Show_Tips"), QStringLiteral("Not Found")).toUpper();
    // "ELSE" is a valid word of this setting. A word other than these four changes nothing.
    if (stored == u"NOT FOUND" || stored == u"ELSE") {
        g.gShowTips = true;
        saveAtStart(QStringLiteral("Show_Tips"), QStringLiteral("Yes"));
        return true;
    }
    if (stored == u"YES") {
        g.gShowTips = true;
        return true;
    }
    if (stored == u"NO")
        g.gShowTips = false;
    return false;
}

void frm_OMKMDIMain::CheckTanks()
{
    EnableTankButtons();
    if (g.gNoTanks == u"N")
        return;
    Beep();
    MsgBox(noTankText, vbExclamation, QStringLiteral("No Tanks Set Up Yet"));
}

void frm_OMKMDIMain::EnableTankButtons()
{
    const bool none = g.gDatabase->OpenRecordset(QStringLiteral("SELECT tankid FROM TANKLST LIMIT 1")).isEmpty();
    g.gNoTanks = none ? QStringLiteral("Y") : QStringLiteral("N");
    m_nothingOpen->setText(none ? setUpFirst : openLogbook);
    for (const char *key : {"logbook", "graphing"})
        button(QLatin1String(key)).Enabled(!none);
}
