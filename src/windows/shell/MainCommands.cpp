// The commands of the main window's menus.
#include <optional>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>

#include "platform/controls/HourGlass.h"
#include "platform/core/Doors.h"
#include "store/Backup.h"
#include "windows/advisers/frm_Compat.h"
#include "windows/advisers/frm_DiagnosisQA.h"
#include "windows/advisers/frm_Fantasy.h"
#include "windows/graph/frm_WaterGraph.h"
#include "windows/logbook/frm_Waterlog.h"
#include "windows/reference/frm_Conversions.h"
#include "windows/reference/frm_LatintoCommon.h"
#include "windows/reminders/frm_Maintsched.h"
#include "windows/reminders/frm_Schedule.h"
#include "windows/shell/Arrange.h"
#include "windows/shell/ChildForm.h"
#include "windows/shell/frm_OMKaboutbox.h"
#include "windows/shell/frm_OMKMDIMain.h"
#include "windows/shell/frm_OMKOptions.h"
#include "windows/shell/frm_OMKtod.h"
#include "windows/shell/MenuEntry.h"
#include "windows/tanks/frm_TankAddNew.h"
#include "windows/tanks/frm_TankMaint.h"

namespace {

/// The logbook if it is shown, even minimised; otherwise null.
frm_Waterlog *visibleLogbook()
{
    auto *logbook = Forms::current().loaded<frm_Waterlog>();
    return logbook && logbook->isShown() ? logbook : nullptr;
}

/// Says whether the backup was made, and why the database could not be opened again afterwards.
QString withBackup(const RuntimeFailure &notOpened, const std::optional<RuntimeFailure> &failure, const QString &target)
{
    const QString outcome = failure ? QStringLiteral("not backed up: ") + failure->description()
                                    : QStringLiteral("backed up to %1.").arg(QDir::toNativeSeparators(target));
    return QStringLiteral(
               "The database was %1\n\nIt could not be opened again afterwards. Each command from now on tries it "
               "once more, so remove the cause and continue:\n%2")
        .arg(outcome, notOpened.description().section(u'\n', 1));
}

/// Updates the graph's list of tanks.
void followTanksInGraph()
{
    if (auto *graph = Forms::current().loaded<frm_WaterGraph>())
        graph->Follow_Tanks();
}

/// Runs after each command of the tree's menu.
void followTanksOfTheTree()
{
    Form<frm_Waterlog>().Refresh_Treeview();
    followTanksInGraph();
    Form<frm_OMKMDIMain>().EnableTankButtons();
}

void tellNoBackup(const RuntimeFailure &failure)
{
    Beep();
    MsgBox(u"The database was not backed up.\n\n" + failure.description(), vbExclamation,
           QStringLiteral("Database Backup"));
}

} // namespace

void frm_OMKMDIMain::mnu_FileNew_Click()
{
    if (auto *logbook = visibleLogbook())
        logbook->Add_Entries();
}

void frm_OMKMDIMain::mnu_FileOpen_Click()
{
    if (auto *logbook = visibleLogbook())
        logbook->Change_Entries();
}

void frm_OMKMDIMain::mnu_FileDelete_Click()
{
    if (auto *logbook = visibleLogbook())
        logbook->Delete_Entries();
}

void frm_OMKMDIMain::mnu_FileMoveEntry_Click() { Form<frm_Waterlog>().Move_Entries(); }

void frm_OMKMDIMain::mnu_FileBackup_Click()
{
    const auto chosen =
        Doors::current().saveDialog({QStringLiteral("Backup Ostrelmark Database As ..."), m_backupFile, {}, {}, false});
    QDir::setCurrent(g.gCurrentDir); // the dialog may have changed it
    // After Cancel, an earlier backup of this session is made again under its name, after the question below.
    if (chosen)
        m_backupFile = *chosen;
    const QString target = m_backupFile;
    if (target.isEmpty())
        return;
    try {
        RequireBackupTarget(g.gDatabase->fileName(), target);
    } catch (const RuntimeFailure &failure) {
        return tellNoBackup(failure);
    }
    if (!QFileInfo::exists(target) || MsgBox(QStringLiteral("The file already exists, overwrite?"),
                                             vbOKCancel + vbQuestion, QStringLiteral("Note!")) == MsgBoxAnswer::OK)
        backUpTo(target);
}

void frm_OMKMDIMain::backUpTo(const QString &target)
{
    std::optional<RuntimeFailure> failure;
    {
        const HourGlass waiting;
        g.gDatabase->LetGo(); // this also ends every recordset
        try {
            BackUpDatabase(g.gDatabase->fileName(), target);
        } catch (const RuntimeFailure &e) {
            failure = e;
        }
    }
    try {
        // Before the message, because the window in front may use the database as soon as the message box closes.
        g.gDatabase->OpenAgain();
    } catch (const RuntimeFailure &notOpened) {
        throw RuntimeFailure(notOpened.number(), withBackup(notOpened, failure, target));
    }
    if (failure)
        return tellNoBackup(*failure);
    Beep();
    const QFileInfo copy(target);
    MsgBox(g.gDatabaseName + u" was backed up to " + QDir::toNativeSeparators(target) + u" with these attributes:" +
               copy.fileName() + u' ' + QLocale::system().toString(copy.lastModified(), QLocale::ShortFormat) + u" - " +
               QString::number(copy.size()) + u" bytes.",
           vbInformation, QStringLiteral("Database Backup"));
}

void frm_OMKMDIMain::mnu_FilePrint_Click()
{
    if (m_activeChild)
        m_activeChild->Print();
}

void frm_OMKMDIMain::mnu_FilePageSetup_Click()
{
    // The dialog sets up the printer itself. The pages and copies that are entered in it are not used.
    Doors::current().printDialog({QStringLiteral("Page Setup"), false, {}});
}

void frm_OMKMDIMain::mnu_Exit_Click() { close(); }

void frm_OMKMDIMain::mnu_ViewToolbar_Click() { m_toolbarPlace->setVisible(mnu_ViewToolbar->isChecked()); }

void frm_OMKMDIMain::mnu_ViewStatusbar_Click() { statusBar()->setVisible(mnu_ViewStatusbar->isChecked()); }

void frm_OMKMDIMain::mnu_ViewRefresh_Click()
{
    if (auto *logbook = visibleLogbook())
        logbook->Refresh_Treeview();
}

void frm_OMKMDIMain::mnu_ViewOptions_Click() { Form<frm_OMKOptions>().ShowOptions(0); }

void frm_OMKMDIMain::mnu_ToolsTanksetup_Click()
{
    Form<frm_TankMaint>().Show_List();
    CheckTanks();
    if (auto *logbook = visibleLogbook())
        logbook->Follow_Tanks(); // an entry for a deleted tank would never be seen again
    followTanksInGraph();
}

void frm_OMKMDIMain::mnu_ToolsLogbook_Click() { ShowChild(Form<frm_Waterlog>()); }

void frm_OMKMDIMain::mnu_ToolsRemindersAddEdit_Click() { ShowChild(Form<frm_Maintsched>()); }

void frm_OMKMDIMain::mnu_ToolsReminderSchedule_Click() { ShowChild(Form<frm_Schedule>()); }

void frm_OMKMDIMain::mnu_ToolsDisease_Click()
{
    // Keys and clicks are excluded, because the second click of a double click would open a second wizard behind the
    // first.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    WizardCancelled = false;
    while (!WizardCancelled) {
        const QPointer<frm_DiagnosisQA> wizard = &Form<frm_DiagnosisQA>();
        wizard->Question_Disclaimer();
        delete wizard; // safe here, because its code has returned; deleteLater() would take effect only after this loop
    }
}

void frm_OMKMDIMain::mnu_ToolsCompatibility_Click() { ShowChild(Form<frm_Compat>()); }

void frm_OMKMDIMain::mnu_ToolsFantasy_Click() { ShowChild(Form<frm_Fantasy>()); }

void frm_OMKMDIMain::mnu_ToolsCommonNames_Click() { ShowChild(Form<frm_LatintoCommon>()); }

void frm_OMKMDIMain::mnu_ToolsConversions_Click() { ShowChild(Form<frm_Conversions>()); }

void frm_OMKMDIMain::mnu_ToolsGraphing_Click()
{
    auto &graph = Form<frm_WaterGraph>();
    ShowChild(graph);
    graph.GraphChart();
}

void frm_OMKMDIMain::mnu_WindowCascade_Click() { CascadeWindows(*m_area); }

void frm_OMKMDIMain::mnu_WindowTileHorizontal_Click() { TileWindows(*m_area, Qt::Horizontal); }

void frm_OMKMDIMain::mnu_WindowTileVertical_Click() { TileWindows(*m_area, Qt::Vertical); }

void frm_OMKMDIMain::mnu_WindowArrangeIcons_Click() { ArrangeIcons(*m_area); }

void frm_OMKMDIMain::fillWindowList()
{
    const auto former = mnu_Window->actions();
    for (QAction *action : former)
        if (action->property("windowListEntry").toBool())
            delete action;
    const auto frames = m_area->subWindowList();
    if (frames.isEmpty())
        return;
    mnu_Window->addSeparator()->setProperty("windowListEntry", true);
    int number = 0;
    for (QMdiSubWindow *frame : frames) {
        auto *action = mnu_Window->addAction(QStringLiteral("&%1 %2").arg(++number).arg(frame->windowTitle()));
        action->setProperty("windowListEntry", true);
        action->setCheckable(true);
        action->setChecked(frame == m_area->activeSubWindow());
        connect(action, &QAction::triggered, frame, [this, frame] {
            if (frame->isMinimized())
                frame->showNormal();
            m_area->setActiveSubWindow(frame);
        });
    }
}

void frm_OMKMDIMain::mnu_HelpTod_Click() { Form<frm_OMKtod>().ShowTip(); }

void frm_OMKMDIMain::mnu_HelpAbout_Click()
{
    g.gSplashMode = false;
    Form<frm_OMKaboutbox>().ShowBox();
}

void frm_OMKMDIMain::mnu_TankAddNew_Click()
{
    Form<frm_TankAddNew>().AddNewTank();
    followTanksOfTheTree();
}

void frm_OMKMDIMain::mnu_TankDelete_Click()
{
    Form<frm_TankMaint>().DeleteTankInfo(Form<frm_Waterlog>().CurrentTankText);
    followTanksOfTheTree();
}

void frm_OMKMDIMain::mnu_TankProperties_Click()
{
    Form<frm_TankMaint>().ChangeTankInfo(Form<frm_Waterlog>().CurrentTankText);
    followTanksOfTheTree();
}

void frm_OMKMDIMain::mnu_GraphOptions_Click()
{
    Form<frm_OMKOptions>().ShowOptions(1);
    auto *graph = Forms::current().loaded<frm_WaterGraph>();
    if (graph && graph->isVisible() && !isEnding())
        graph->GraphChart();
}
