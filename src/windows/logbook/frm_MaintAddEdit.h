// One maintenance entry: a task, when it was done, and how much of what was used. The logbook opens the row and fills
// the controls. OK checks and writes one field after the other: what a refused attempt wrote into the row is
// overwritten by the next one and discarded by Cancel.
#pragma once

#include "windows/common/DateBoxes.h"
#include "windows/logbook/EntryForm.h"

class QLineEdit;
class UpDown;

class frm_MaintAddEdit : public EntryForm
{
    Q_OBJECT
public:
    explicit frm_MaintAddEdit(const FormContext &context);

    void Form_Load();
    void setDateOrder() { UseDateOrder(*txt_logdate, g.options); }
    /// The values that a new entry starts with.
    void setDefaults();
    void load(Recordset &row);
    void ShowWindow(const Recordset &row, const QString &tankId);

    MaskedBox *txt_logdate;
    MaskedBox *txt_logtime;
    QComboBox *lst_mainttasklist;
    QLineEdit *txt_description;
    MaskedBox *txt_quantity;
    UpDown *ud_quantity;
    QComboBox *lst_unit;
    QPlainTextEdit *txt_maintlognotes;
    QPushButton *cmd_OK;
    QPushButton *cmd_Cancel;
    QPushButton *cmd_Caldate;

private:
    void Cancel() override { cmd_Cancel_Click(); }
    void makeControls();
    QWidget *makePage();
    void connectAll();
    /// Checks and writes one field after the other. At the first fault it shows the message and returns false.
    bool store();

    bool txt_logdate_LostFocus();
    void txt_logdate_ValidationError();
    bool txt_logtime_LostFocus();
    void txt_logtime_ValidationError();
    bool txt_quantity_LostFocus();
    void ud_quantity_Change();
    void cmd_OK_Click();
    void cmd_Cancel_Click();
    void cmd_caldate_Click();
};
