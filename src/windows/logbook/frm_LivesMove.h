// Asks for the tank to which an animal moves. The logbook opens the row; OK assigns it to the chosen tank and, if the
// keeper asks for it, sets its date and time to now.
#pragma once

#include "ui_frm_LivesMove.h"
#include "windows/shell/DialogForm.h"

class frm_LivesMove : public DialogForm, public Ui::frm_LivesMove
{
    Q_OBJECT
public:
    explicit frm_LivesMove(const FormContext &context);

    void Form_Load();
    void ShowWindow(const Recordset &row);

private:
    void Cancel() override { cmd_Cancel_Click(); }
    void store();

    void cmd_OK_Click();
    void cmd_Cancel_Click();
    void lst_tanklist_DblClick();

    Recordset m_row;
};
