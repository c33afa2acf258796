// The thank-you page, opened by a key chord in the about box.
#pragma once

#include "windows/shell/DialogForm.h"

class frm_OMKCredits : public DialogForm
{
    Q_OBJECT
public:
    explicit frm_OMKCredits(const FormContext &context);

    void ShowCredits() { ShowModal(); }

protected:
    void Cancel() override { cmd_OK_Click(); }

private:
    void cmd_OK_Click();
};
