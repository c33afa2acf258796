// What the other windows ask of the main window.
#pragma once

#include <QString>

class ChildForm;
struct MainMenu;

class MainWindow
{
public:
    /// Shows a window among the children and gives it the focus.
    virtual void ShowChild(ChildForm &child) = 0;
    /// Whether it is the child in front; it stays so behind a dialog or another program.
    virtual bool isInFront(const ChildForm &child) const = 0;
    /// Called by a child that has something to print, when it comes to the front and whenever that changes. It has no
    /// effect for a child that is not in front, because lists are filled behind other windows, too.
    virtual void offerPrint(const ChildForm &child, bool enabled,
                            const QString &caption = QStringLiteral("&Print")) = 0;
    /// There is nothing to print: no child in front offers it, or a dialog is in front.
    virtual void disablePrint() = 0;
    /// Sets the text of panel 1 of the status bar.
    virtual void setPanel(const QString &text) = 0;
    /// Fills the upcoming reminders of the toolbar with the soonest dates of all reminders, at most twenty.
    virtual void Top20List() = 0;
    /// Reads every list of reminders again after a box has deleted some, also that of an open window.
    virtual void RefillReminders() = 0;
    /// Shows the graph of the tank in hand.
    virtual void mnu_ToolsGraphing_Click() = 0;
    /// The menus and pop-ups, whose entries follow the window in front.
    virtual MainMenu &menu() = 0;

    bool WizardCancelled = false; ///< the keeper has left the diagnosis wizard

protected:
    ~MainWindow() = default;
};
