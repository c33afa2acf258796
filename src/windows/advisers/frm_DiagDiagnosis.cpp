#include "windows/advisers/frm_DiagDiagnosis.h"

#include "logic/advisers/Diagnoses.h"
#include "logic/advisers/DiagnosisSheet.h"
#include "platform/controls/Guarded.h"
#include "windows/advisers/frm_DiagnosisQA.h"
#include "windows/common/PrintReport.h"
#include "windows/shell/MainMenu.h"
#include "windows/shell/MenuEntry.h"

frm_DiagDiagnosis::frm_DiagDiagnosis(const FormContext &context) : DialogForm(context)
{
    setupUi(this);
    on(cmd_Close, &QPushButton::clicked, this, &frm_DiagDiagnosis::cmd_Close_Click);
    on(Command1, &QPushButton::clicked, this, &frm_DiagDiagnosis::Command1_Click);
    on(cmd_PrintQuestionsandAnswers, &QPushButton::clicked, this,
       &frm_DiagDiagnosis::cmd_PrintQuestionsandAnswers_Click);
}

void frm_DiagDiagnosis::Showdiagnosis()
{
    lbl_diagnosis->setText(DiagnosisName);
    TakeAdvice(g.gMessage, DiagnosisName, DiagnosisWindow::OwnWindow);
    txt_diag_desc->setPlainText(g.gMessage);
    g.diagnosisLog.AddDiagnosis(DiagnosisName, g.gMessage);
    ShowModal();
}

void frm_DiagDiagnosis::changeEvent(QEvent *event)
{
    DialogForm::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow())
        return;
    MenuEntry &print = *main.menu().mnu_FilePrint;
    print.setText(QStringLiteral("&Print"));
    print.Enabled(true);
}

void frm_DiagDiagnosis::Command1_Click()
{
    const Forms::Pin whileItAsks(*this);
    hide();
    Form<frm_DiagnosisQA>().Question_StartingPoint();
}

void frm_DiagDiagnosis::PrintQuestionsandAnswers()
{
    PrintReport(main, MakeDiagnosisSheet(g.diagnosisLog, DiagnosisWindow::OwnWindow), PrintTarget::DefaultPrinter);
}
