// The one dialog for adding and for changing a tank. It keeps the row in progress; OK writes the controls into it. The
// water type that is stored is that of the option clicked last, or the row's own, which may have no option.
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
    /// Opens the dialog on the tank of that name, for frm_TankMaint.ChangeTankInfo. Throws NoCurrentRecord if there is
    /// none.
    void ChangeTank(const QString &tankName);

    QString DialogMode; ///< "add" or "edit"

private:
    void Cancel() override { cmd_Cancel_Click(); }
    /// The option of a water type's code; null for a code that is none.
    QRadioButton *waterTypeOption(const QString &code);
    /// Checks in their order; false, after its box, at the first fault.
    bool fieldsAreGood();
    bool txt_tanksize_LostFocus();
    /// Writes the box into the row, if the keeper has edited it.
    void put(const char *column, const QWidget &box, const Value &value);
    void store();

    void cmd_OK_Click();
    void cmd_Cancel_Click();

    LeavingChecks m_checks;
    ShownTexts m_shown;
    Recordset m_tank;    ///< the row that is being added or changed
    QString m_waterType; ///< its water's code, of the option chosen last
};
