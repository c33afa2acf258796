// A diagnosis in a window of its own, with its own texts and printed sheet. Nothing opens it at present.
#pragma once

#include "ui_frm_DiagDiagnosis.h"
#include "windows/shell/DialogForm.h"

class frm_DiagDiagnosis : public DialogForm, public Ui::frm_DiagDiagnosis
{
    Q_OBJECT
public:
    explicit frm_DiagDiagnosis(const FormContext &context);

    /// Shows the advice for DiagnosisName, adds it to the log of answers, and returns when the window closes.
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
