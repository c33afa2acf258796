// The main window, parent of every other: menus, toolbar with the upcoming reminders, the children, the status bar. It
// opens the database, runs the steps of the start, and passes commands on to the windows; what a tool does is the
// tool's. Its menu handlers only call the windows' public operations.
#pragma once

#include <map>

#include <QMainWindow>
#include <QPointer>

#include "logic/shell/Globals.h"
#include "windows/shell/MainMenu.h"
#include "windows/shell/MainWindow.h"

class ChildForm;
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

    /// The start, step by step. Throws RuntimeFailure where the database cannot be opened or upgraded; no window is
    /// left on the screen then.
    void MDIForm_Load();
    /// Tells the active child that it is in front: after a dialog, or another program, closed over it. Does nothing
    /// while a box or a dialog is open.
    void MDIForm_Activate();
    /// Closes the children, which store what they keep, and unloads the window that holds the settings.
    void MDIForm_Unload();

    void ShowChild(ChildForm &child) override;
    bool isInFront(const ChildForm &child) const override;
    void offerPrint(const ChildForm &child, bool enabled, const QString &caption) override;
    void disablePrint() override;
    void setPanel(const QString &text) override;
    void Top20List() override;
    void RefillReminders() override;
    MainMenu &menu() override { return *this; }
    /// A tool button of the toolbar by its key.
    MenuEntry &button(const QString &key) { return *m_buttons.at(key); }
    /// Warns where there is no tank, and lets the buttons that need one follow.
    void CheckTanks();
    /// The buttons that need a tank follow the tanks, without a word.
    void EnableTankButtons();

    // What the entries of the menus do.
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
    /// Of the whole program: presses in children, and F1 in whatever window.
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void makeToolbar();
    void makeStatusBar();
    void fillWindowList();
    void subWindowActivated(QMdiSubWindow *window);
    void bringToFront(const QWidget &pressed);
    bool helpKey(const QKeyEvent &key);
    void cbo_Reminders_Click();
    /// Sets gDbVersion; upgrades a database of an earlier version.
    void CheckDatabaseVersion();
    void showSplash();
    /// Whether the tip of the day is due, by the setting Show_Tips; writes it at the first run.
    bool tipIsDue();
    void showHelp(const HelpRequest &request);
    /// Name of the form that the keeper is at: a dialog, the active child, or this window.
    QString formInFront() const;
    /// What the keeper asked for with the database closed, and open again afterwards; tells how it went.
    void backUpTo(const QString &target);

    Globals &g;
    QMdiArea *m_area;
    QLabel *m_panel;
    QAction *m_toolbarPlace; ///< shows and hides Toolbar1: the strip would bring a hidden one back
    std::map<QString, MenuEntry *> m_buttons;
    QPointer<ChildForm> m_activeChild;
    QString m_backupFile; ///< the name last chosen for a backup
};
