#include "windows/advisers/frm_DiagnosisQA.h"

#include <algorithm>
#include <cmath>

#include <QButtonGroup>
#include <QEventLoop>

#include "logic/advisers/Diagnoses.h"
#include "logic/advisers/DiagnosisSheet.h"
#include "platform/controls/Guarded.h"
#include "platform/controls/Icons.h"
#include "windows/common/PrintReport.h"

namespace {

// Sizes in pixels at 96 dpi. The window grows if its texts need more.
constexpr int leastWidth = 457;
constexpr int frameHeight = 236; // of the disclaimer and of the diagnosis
constexpr int answerHeight = 23;
constexpr int aroundAnswers = 43;
constexpr int aroundFrame = 97;
constexpr QSize pictureSize(96, 72);

} // namespace

frm_DiagnosisQA::frm_DiagnosisQA(const FormContext &context) : DialogForm(context)
{
    setupUi(this);
    setModal(true);
    opt_Answer = {opt_Answer_0, opt_Answer_1, opt_Answer_2, opt_Answer_3, opt_Answer_4, opt_Answer_5};
    auto *group = new QButtonGroup(this);
    for (int i = 0; i < mostAnswers; ++i) {
        auto *option = opt_Answer[static_cast<size_t>(i)];
        group->addButton(option);
        connect(option, &QRadioButton::toggled, this, guarded([this, i](bool chosen) {
                    if (chosen)
                        opt_Answer_Click(i);
                }));
    }
    pic_disclaimer->setPixmap(Icon("reminderfish").pixmap(pictureSize, devicePixelRatioF()));
    pic_diagnosis->setPixmap(Icon("sickfish").pixmap(pictureSize, devicePixelRatioF()));
    txt_disclaimer->setPlainText(QLatin1String(disclaimerText));
    const QFontMetrics letters = txt_disclaimer->fontMetrics();
    txt_disclaimer->setMinimumWidth(letters.size(0, txt_disclaimer->toPlainText()).width() + 24);
    txt_diag_desc->setMinimumHeight(letters.lineSpacing() * 12);
    for (QGroupBox *frame : {fra_Disclaimer, fra_Diagnosis})
        frame->setMinimumHeight(qMax(frameHeight, frame->minimumSizeHint().height()));
    on(cmd_Next, &QPushButton::clicked, this, &frm_DiagnosisQA::cmd_Next_Click);
    on(cmd_StartOver, &QPushButton::clicked, this, &frm_DiagnosisQA::cmd_StartOver_Click);
    on(cmd_Cancel, &QPushButton::clicked, this, &frm_DiagnosisQA::cmd_Cancel_Click);
    on(cmd_PrintQuestionsandAnswers, &QPushButton::clicked, this, &frm_DiagnosisQA::cmd_PrintQuestionsandAnswers_Click);
}

void frm_DiagnosisQA::Form_Load()
{
    int width = fra_Disclaimer->minimumSizeHint().width();
    for (int page = 0; page < questionPageCount; ++page) { // the widest page decides, so that the width never changes
        setCaptions(static_cast<QuestionPage>(page));
        width = qMax(width, Frame1->minimumSizeHint().width());
    }
    const QMargins around = layout()->contentsMargins();
    width = qMax(leastWidth, width + around.left() + around.right());
    resize(width, 321);
    const QRect over = parentWidget()->geometry();
    move(over.left() + (over.width() - width) / 2, over.top());
}

void frm_DiagnosisQA::run(QuestionPage first)
{
    Forms::current().whileModal(*this, [this, first] {
        ask(first);
        hide();
    });
}

void frm_DiagnosisQA::ask(QuestionPage page)
{
    if (page == QuestionPage::Question_Disclaimer || page == QuestionPage::Question_StartingPoint)
        begin(page);
    setCaptions(page);
    if (page != QuestionPage::Question_Disclaimer)
        bringToFront(*page_Question, *opt_Answer[0]);
    fixmysize();
    if (!isGoingOn())
        return;
    const auto next = FollowAnswer(page, AnswerIndex);
    if (!next)
        return; // the keeper started over
    if (const auto *nextPage = std::get_if<QuestionPage>(&*next))
        return ask(*nextPage);
    DiagnosisName = QLatin1String(std::get<const char *>(*next));
    Showdiagnosis();
}

void frm_DiagnosisQA::begin(QuestionPage page)
{
    cmd_PrintQuestionsandAnswers->setEnabled(false);
    cmd_Back->setEnabled(false); // it is never enabled: the only way back is Start Over
    cmd_StartOver->setEnabled(true);
    cmd_Next->setEnabled(page == QuestionPage::Question_Disclaimer);
    if (page == QuestionPage::Question_StartingPoint)
        return clearAnswers();
    bringToFront(*fra_Disclaimer, *cmd_Next);
    g.diagnosisLog.ResetAnswerLog();
}

void frm_DiagnosisQA::setCaptions(QuestionPage page)
{
    const Question &question = QuestionOf(page);
    lbl_Question->setText(QLatin1String(question.text));
    Frame1->setAccessibleDescription(lbl_Question->text());
    for (int i = 0; i < mostAnswers; ++i) {
        QRadioButton &option = *opt_Answer[static_cast<size_t>(i)];
        option.setText(QLatin1String(question.answers[i].text));
        option.setVisible(i < 2 || i < question.answerCount());
    }
}

void frm_DiagnosisQA::clearAnswers()
{
    // In an exclusive group one option always stays checked, so the group is not exclusive meanwhile.
    QButtonGroup &group = *opt_Answer[0]->group();
    group.setExclusive(false);
    for (QRadioButton *option : opt_Answer)
        option->setChecked(false);
    group.setExclusive(true);
}

void frm_DiagnosisQA::bringToFront(QWidget &page, QWidget &focus)
{
    for (QWidget *other :
         {page_Question, static_cast<QWidget *>(fra_Disclaimer), static_cast<QWidget *>(fra_Diagnosis)})
        other->setVisible(other == &page);
    focus.setFocus();
}

bool frm_DiagnosisQA::isGoingOn()
{
    bool &cancelled = main.WizardCancelled;
    cancelled = true; // Next and Start Over reset it, so the wizard also ends when the program does
    QEventLoop wait;
    connect(this, &frm_DiagnosisQA::pageLeft, &wait, &QEventLoop::quit);
    connect(this, &QDialog::finished, &wait, &QEventLoop::quit); // emitted when the window is unloaded
    show();
    wait.exec(QEventLoop::DialogExec);
    return !cancelled;
}

void frm_DiagnosisQA::Showdiagnosis()
{
    cmd_PrintQuestionsandAnswers->setEnabled(true);
    cmd_Next->setEnabled(false);
    cmd_Back->setEnabled(false);
    bringToFront(*fra_Diagnosis, *txt_diag_desc);
    lbl_diagnosis->setText(DiagnosisName);
    TakeAdvice(g.gMessage, DiagnosisName, DiagnosisWindow::Wizard);
    txt_diag_desc->setPlainText(g.gMessage);
    g.diagnosisLog.AddDiagnosis(DiagnosisName, g.gMessage);
    fitHeight(height());
    isGoingOn();
}

void frm_DiagnosisQA::fixmysize()
{
    const auto options =
        static_cast<int>(std::ranges::count_if(opt_Answer, [](const auto *option) { return !option->isHidden(); }));
    const int frame = options * answerHeight + aroundAnswers;
    Frame1->setMinimumHeight(frame);
    fitHeight(frame + aroundFrame);
    const QRect over = parentWidget()->geometry();
    move(x(), static_cast<int>(std::abs(over.height() - height()) * 0.3) + over.top());
}

void frm_DiagnosisQA::fitHeight(int told)
{
    for (const QWidget *inside : {static_cast<QWidget *>(Frame1), page_Question, static_cast<QWidget *>(this)})
        inside->layout()->activate(); // from inside, else the outer ones keep the former page's size
    resize(width(), qMax(told, layout()->totalHeightForWidth(width())));
}

void frm_DiagnosisQA::changeEvent(QEvent *event)
{
    DialogForm::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        main.disablePrint();
}

void frm_DiagnosisQA::opt_Answer_Click(int index)
{
    AnswerIndex = QString::number(index);
    cmd_Next->setEnabled(true);
}

void frm_DiagnosisQA::cmd_Next_Click()
{
    cmd_Next->setEnabled(false);
    if (!AnswerIndex.isEmpty()) {
        clearAnswers();
        g.diagnosisLog.AddAnswer(lbl_Question->text(), opt_Answer.at(AnswerIndex.toUInt())->text());
    }
    main.WizardCancelled = false;
    emit pageLeft();
}

void frm_DiagnosisQA::cmd_StartOver_Click()
{
    AnswerIndex = startedOver;
    main.WizardCancelled = false;
    Unload(*this);
}

void frm_DiagnosisQA::cmd_Cancel_Click()
{
    main.WizardCancelled = true;
    Unload(*this);
}

void frm_DiagnosisQA::PrintQuestionsandAnswers()
{
    PrintReport(main, MakeDiagnosisSheet(g.diagnosisLog, DiagnosisWindow::Wizard), PrintTarget::Printer);
}
