// The part of the main window that other windows use. They get it in their FormContext, and frm_OMKMDIMain implements
// it.
#pragma once

#include <QString>

class ChildForm;
struct MainMenu;

class MainWindow
{
public:
    /// Shows a child window and gives it the focus.
    virtual void ShowChild(ChildForm &child) = 0;
    /// Whether it is the child in front. A dialog or another program in front does not change that.
    virtual bool isInFront(const ChildForm &child) const = 0;
    /// Enables or disables "Print". A child that can print calls this when it comes to the front and whenever that
    /// changes. The call has no effect for a child that is not in front, because lists are also filled behind other
    /// windows.
    virtual void offerPrint(const ChildForm &child, bool enabled,
                            const QString &caption = QStringLiteral("&Print")) = 0;
    /// Disables "Print": the child in front cannot print, or a dialog is in front.
    virtual void disablePrint() = 0;
    /// Sets the text of panel 1 of the status bar.
    virtual void setPanel(const QString &text) = 0;
    /// Fills the toolbar's list with the soonest dates of all reminders, at most twenty.
    virtual void Top20List() = 0;
    /// Reads all lists of reminders again, including that of an open window, after a message box has deleted some.
    virtual void RefillReminders() = 0;
    /// Shows the graph of the current tank.
    virtual void mnu_ToolsGraphing_Click() = 0;
    /// The menus and pop-up menus, whose entries depend on the window in front.
    virtual MainMenu &menu() = 0;

    bool WizardCancelled = false; ///< the keeper has left the diagnosis wizard

protected:
    ~MainWindow() = default;
};
