// The conversion calculator, a child window with no link to the database: a list of conversions, a box for the value
// and one for the result. Conversions.h calculates. Enter converts, Esc closes.
#pragma once

#include "windows/shell/ChildForm.h"

class ListView;
class QLabel;
class QLineEdit;
class QPushButton;

class frm_Conversions : public ChildForm
{
    Q_OBJECT
public:
    explicit frm_Conversions(const FormContext &context);

    void Form_Load();
    void Form_Activate() override;
    /// Shows the units of the selected conversion beside the boxes and clears the result of the previous one.
    void SetLabels();

    ListView *lstv_Convert;
    QLabel *lbl_From, *lbl_To;
    QLineEdit *txt_FromValue, *txt_ToValue;
    QPushButton *cmd_Convert, *cmd_Close;

private:
    void makeControls();
    void arrange();
    void connectAll();
    void refuse(const QString &text);

    void lstv_Convert_Click() { SetLabels(); }
    void lstv_Convert_ColumnClick(int index);
    void cmd_Convert_Click();
    void cmd_Close_Click() { close(); }
};
