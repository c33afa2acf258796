// The dialog for adding or changing a tank. It holds the row, and OK writes the controls into it. The stored water type
// is that of the option clicked last, or else the row's own, for which there may be no option.
#pragma once

#include "platform/controls/LeavingChecks.h"
#include "platform/controls/ShownTexts.h"
#include "ui_frm_TankAddNew.h"
#include "windows/shell/DialogForm.h"

class frm_TankAddNew : public DialogForm, public Ui::frm_TankAddNew
{
    Q_OBJECT
public:
    explicit frm_TankAddNew(const FormContext &context);

    /// Opens the dialog for a new tank.
    void AddNewTank();
    /// Opens the dialog for the tank of that name. Throws NoCurrentRecord if there is none.
    void ChangeTank(const QString &tankName);

    QString DialogMode; ///< "add" or "edit"

private:
    void Cancel() override { cmd_Cancel_Click(); }
    /// The option for the code of a water type; null for an unknown code.
    QRadioButton *waterTypeOption(const QString &code);
    /// Runs the checks in their order. At the first fault it shows the message and returns false.
    bool fieldsAreGood();
    bool txt_tanksize_LostFocus();
    /// Writes the value into the row if the keeper has edited the box.
    void put(const char *column, const QWidget &box, const Value &value);
    void store();

    void cmd_OK_Click();
    void cmd_Cancel_Click();

    LeavingChecks m_checks;
    ShownTexts m_shown;
    Recordset m_tank;    ///< the row that is being added or changed
    QString m_waterType; ///< the code of the option chosen last
};
