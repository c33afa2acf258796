// The disease diagnosis wizard: it leads from the signs on a sick fish to one diagnosis, shows its advice, and prints
// questions and answers. Each page waits for its answer and then calls the next one, so all former pages are on the
// stack; Start Over and Cancel unload the window, and all calls return. The main window calls Question_Disclaimer until
// the keeper cancels.
#pragma once

#include <array>

#include "logic/advisers/QuestionTree.h"
#include "ui_frm_DiagnosisQA.h"
#include "windows/shell/DialogForm.h"

class frm_DiagnosisQA : public DialogForm, public Ui::frm_DiagnosisQA
{
    Q_OBJECT
public:
    explicit frm_DiagnosisQA(const FormContext &context);
    void Form_Load();

    /// Run the wizard from the disclaimer or from the first question. They return when the keeper starts over or
    /// cancels.
    void Question_Disclaimer() { run(QuestionPage::Question_Disclaimer); }
    void Question_StartingPoint() { run(QuestionPage::Question_StartingPoint); }

    QString AnswerIndex;   ///< the number of the answer clicked last; empty before the first, "99" after Start Over
    QString DiagnosisName; ///< set before Showdiagnosis runs

signals:
    void pageLeft();

protected:
    void changeEvent(QEvent *event) override;

private:
    void Cancel() override { cmd_Cancel_Click(); }
    void run(QuestionPage first);
    void ask(QuestionPage page);
    void begin(QuestionPage page);
    void setCaptions(QuestionPage page);
    void clearAnswers();
    void bringToFront(QWidget &page, QWidget &focus);
    /// Waits for Next, and returns false if the keeper has left the wizard. The window stays on the screen from page to
    /// page.
    bool isGoingOn();
    void Showdiagnosis();
    void fixmysize();
    void fitHeight(int told);

    void opt_Answer_Click(int index);
    void cmd_Next_Click();
    void cmd_StartOver_Click();
    void cmd_Cancel_Click();
    void cmd_PrintQuestionsandAnswers_Click() { PrintQuestionsandAnswers(); }
    void PrintQuestionsandAnswers();

    std::array<QRadioButton *, mostAnswers> opt_Answer;
};
