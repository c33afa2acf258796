// The page of a diagnosis as a window of its own, with words and a sheet of its own. Nothing opens it today.
#pragma once

#include "ui_frm_DiagDiagnosis.h"
#include "windows/shell/DialogForm.h"

class frm_DiagDiagnosis : public DialogForm, public Ui::frm_DiagDiagnosis
{
    Q_OBJECT
public:
    explicit frm_DiagDiagnosis(const FormContext &context);

    /// Shows the advice of DiagnosisName and completes the log of the answers with it; back when the window goes.
    void Showdiagnosis();

    QString DiagnosisName;

protected:
    void changeEvent(QEvent *event) override;

private:
    void Cancel() override { cmd_Close_Click(); }
    void cmd_Close_Click() { Unload(*this); }
    void Command1_Click();
    void cmd_PrintQuestionsandAnswers_Click() { PrintQuestionsandAnswers(); }
    void PrintQuestionsandAnswers();
};
