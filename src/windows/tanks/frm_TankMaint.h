// The list of tanks, where they are added, changed and deleted. Changes take effect at once, so OK and Cancel both just
// close the window. The commands of the tree's menu call ChangeTankInfo and DeleteTankInfo with the tank of the tree,
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
    /// Opens the dialog for a tank. An empty name means the tank selected in the list.
    void ChangeTankInfo(const QString &tankName);
    /// Deletes a tank with all its entries, after a question. An empty name means the tank selected in the list.
    void DeleteTankInfo(const QString &tankName);

private:
    void Cancel() override { cmd_Cancel_Click(); }
    void fillList();
    /// Returns the name, or the tank selected in the list if the name is empty. If none is selected either, shows a
    /// message and returns an empty text.
    QString nameOrSelection(const QString &tankName);
    QString selection() const;

    void cmd_AddTank_Click();
    void cmd_ChangeTank_Click();
    void cmd_DeleteTank_Click();
    void cmd_ok_Click();
    void cmd_Cancel_Click();
};
