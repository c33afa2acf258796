// The list of tanks, from which they are added, changed and deleted. Nothing is pending in it: both of its lower
// buttons just close. The main window's tree commands call ChangeTankInfo and DeleteTankInfo with the tree's tank,
// without showing the list.
#pragma once

#include "ui_frm_TankMaint.h"
#include "windows/shell/DialogForm.h"

class frm_TankMaint : public DialogForm, public Ui::frm_TankMaint
{
    Q_OBJECT
public:
    explicit frm_TankMaint(const FormContext &context);

    /// Fills the list and shows the window.
    void Show_List();
    /// Opens the dialog of a tank; an empty name means the list's selection.
    void ChangeTankInfo(const QString &tankName);
    /// Deletes a tank with all its entries, after a question; an empty name means the list's selection.
    void DeleteTankInfo(const QString &tankName);

private:
    void Cancel() override { cmd_Cancel_Click(); }
    void fillList();
    /// The list's selection where the name is empty; nothing, after a box, where there is none either.
    QString nameOrSelection(const QString &tankName);
    QString selection() const;

    void cmd_AddTank_Click();
    void cmd_ChangeTank_Click();
    void cmd_DeleteTank_Click();
    void cmd_ok_Click();
    void cmd_Cancel_Click();
};
