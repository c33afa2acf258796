// The tip of the day: a hint about fishkeeping or about the program. It is shown at the start while the keeper wants
// it, and from the Help menu. The check box writes the setting Show_Tips at once.
#pragma once

#include "windows/shell/DialogForm.h"

class QCheckBox;
class QPlainTextEdit;
class QPushButton;

class frm_OMKtod : public DialogForm
{
    Q_OBJECT
public:
    explicit frm_OMKtod(const FormContext &context);

    void Form_Load();
    /// Shows a random tip and waits until the window is closed.
    void ShowTip() { ShowModal(); }

    QPlainTextEdit *txt_tod;
    QCheckBox *chk_ShowTipsAtStartup;
    QPushButton *cmd_nexttip, *cmd_ok;

private:
    void Cancel() override { cmd_ok_Click(); }
    void makeControls();
    void arrange();
    void showTip();

    void cmd_nexttip_Click();
    void cmd_ok_Click() { Unload(*this); }
    void chk_ShowTipsAtStartup_Click();
};
