// The main window, the parent of all others: menus, toolbar with the upcoming reminders, child windows, status bar. It
// opens the database, runs the steps of the start, and passes commands on to the windows. Its menu handlers only call
// public functions of the windows.
#pragma once

#include <map>

#include <QMainWindow>
#include <QPointer>

#include "logic/shell/Globals.h"
#include "windows/shell/MainMenu.h"
#include "windows/shell/MainWindow.h"

class ChildForm;
class EmptyText;
struct HelpRequest;
class QAction;
class QComboBox;
class QKeyEvent;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QToolBar;

class frm_OMKMDIMain : public QMainWindow, public MainMenu, public MainWindow
{
    Q_OBJECT
public:
    explicit frm_OMKMDIMain(Globals &globals);
    ~frm_OMKMDIMain() override;

    /// Runs the start step by step. Throws RuntimeFailure if the database cannot be opened or upgraded; then no window
    /// is left on the screen.
    void MDIForm_Load();
    /// Tells the active child that it is in front again after a dialog or another program. Does nothing while a message
    /// box or a dialog is open.
    void MDIForm_Activate();
    /// Brings the program to the front where the desktop lets it: the window, and the box or dialog that is open over
    /// it.
    void ComeToFront();
    /// Closes the children, which store their settings, and unloads the Options window.
    void MDIForm_Unload();

    void ShowChild(ChildForm &child) override;
    bool isInFront(const ChildForm &child) const override;
    void offerPrint(const ChildForm &child, bool enabled, const QString &caption) override;
    void disablePrint() override;
    void setPanel(const QString &text) override;
    void Top20List() override;
    void RefillReminders() override;
    MainMenu &menu() override { return *this; }
    /// The tool button with that key.
    MenuEntry &button(const QString &key) { return *m_buttons.at(key); }
    /// Enables the buttons that need a tank if there is one, and warns if there is none.
    void CheckTanks();
    /// Enables the buttons that need a tank if there is one, without a message.
    void EnableTankButtons();

    // The commands of the menus.
    void mnu_FileNew_Click();
    void mnu_FileOpen_Click();
    void mnu_FileDelete_Click();
    void mnu_FileMoveEntry_Click();
    void mnu_FileBackup_Click();
    void mnu_FilePageSetup_Click();
    void mnu_FilePrint_Click();
    void mnu_Exit_Click();
    void mnu_ViewToolbar_Click();
    void mnu_ViewStatusbar_Click();
    void mnu_ViewRefresh_Click();
    void mnu_ViewOptions_Click();
    void mnu_ToolsTanksetup_Click();
    void mnu_ToolsLogbook_Click();
    void mnu_ToolsRemindersAddEdit_Click();
    void mnu_ToolsReminderSchedule_Click();
    void mnu_ToolsDisease_Click();
    void mnu_ToolsCompatibility_Click();
    void mnu_ToolsFantasy_Click();
    void mnu_ToolsCommonNames_Click();
    void mnu_ToolsConversions_Click();
    void mnu_ToolsGraphing_Click() override;
    void mnu_WindowCascade_Click();
    void mnu_WindowTileHorizontal_Click();
    void mnu_WindowTileVertical_Click();
    void mnu_WindowArrangeIcons_Click();
    void mnu_HelpContents_Click();
    void mnu_HelpSearch_Click();
    void mnu_HelpTod_Click();
    void mnu_HelpAbout_Click();
    void mnu_TankAddNew_Click();
    void mnu_TankDelete_Click();
    void mnu_TankProperties_Click();
    void mnu_GraphOptions_Click();

    QWidget *Picture1;
    QToolBar *Toolbar1;
    QComboBox *cbo_Reminders;

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;
    /// Filters the events of the whole program: mouse presses in children, F1 in any window, and copying from any list.
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void makeToolbar();
    void makeStatusBar();
    void fillWindowList();
    void subWindowActivated(QMdiSubWindow *window);
    void bringToFront(const QWidget &pressed);
    bool helpKey(const QKeyEvent &key);
    void cbo_Reminders_Click();
    /// Sets gDbVersion, and upgrades the database if it is of an earlier version.
    void CheckDatabaseVersion();
    void showSplash();
    /// Whether to show the tip of the day, according to the setting Show_Tips, which is written at the first run.
    bool tipIsDue();
    void showHelp(const HelpRequest &request);
    /// The name of the window in use: a dialog, the active child, or this window.
    QString formInFront() const;
    /// Makes the backup while the database is closed, opens the database again, and reports the result.
    void backUpTo(const QString &target);

    Globals &g;
    QMdiArea *m_area;
    EmptyText *m_nothingOpen; ///< in m_area
    QLabel *m_panel;
    QAction *m_toolbarPlace; ///< shows and hides Toolbar1, because the strip would show a hidden widget again
    std::map<QString, MenuEntry *> m_buttons;
    QPointer<ChildForm> m_activeChild;
    QString m_backupFile; ///< the name last chosen for a backup
};
