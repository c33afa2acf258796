#include "Desk.h"
#include "logic/advisers/Diagnoses.h"
#include "logic/advisers/QuestionTree.h"
#include "windows/advisers/frm_DiagnosisQA.h"

/// Goes through the wizard page by page, with the logbook open behind it.
class Wizard : public Desk
{
protected:
    using Step = std::function<void(frm_DiagnosisQA &)>;

    /// Opens the wizard by its shortcut, passes the disclaimer, answers a page for each digit, and then does these
    /// steps, each on the next page. Afterwards the wizard must be closed.
    void diagnose(const QString &digits, const std::vector<Step> &then)
    {
        std::vector<Step> steps{[](frm_DiagnosisQA &w) { mouse::click(w.cmd_Next); }};
        for (const QChar digit : digits)
            steps.push_back([digit](frm_DiagnosisQA &w) {
                EXPECT_TRUE(w.lbl_Question->isVisible() && !w.fra_Disclaimer->isVisible());
                EXPECT_FALSE(w.cmd_Next->isEnabled() || w.cmd_PrintQuestionsandAnswers->isEnabled());
                mouse::click(&control<QRadioButton>(w, QString("opt_Answer_") + digit), QPoint(8, 8));
                hand::press(Qt::Key_Return);
            });
        steps.insert(steps.end(), then.begin(), then.end());
        size_t next = 0;
        QTimer atPage;
        QObject::connect(&atPage, &QTimer::timeout, &atPage, [&] {
            auto *w = Forms::current().loaded<frm_DiagnosisQA>();
            if (!w || !w->isVisible())
                return;
            atPage.stop();
            EXPECT_TRUE(isInFront(*w));
            EXPECT_FALSE(w->cmd_Back->isEnabled() || main->mnu_FilePrint->isEnabled());
            if (next < steps.size())
                steps[next](*w);
            else
                Unload(*w);
            ++next;
            atPage.start();
        });
        EXPECT_TRUE(isInFront(*main) && main->mnu_FilePrint->isEnabled());
        atPage.start(0);
        hand::press(Qt::Key_D, Qt::ControlModifier);
        EXPECT_EQ(next, steps.size());
        EXPECT_TRUE(main->WizardCancelled && !Forms::current().loaded<frm_DiagnosisQA>());
    }
    QString lineOf(qsizetype slot) { return keeper.g().diagnosisLog.AnswerLog[size_t(slot)]; }
};

TEST_F(Wizard, ItsAnswersLeadToADiagnosisAndTheOneWithoutAdviceShowsWhateverWasSaidLast)
{
    keeper.g().gMessage = "ERROR 61 occurred.";
    const auto &first = QuestionOf(QuestionPage::Question_StartingPoint);
    const QStringList leaves = {"0002 Open Sore", "4 Popeye", "000000 Unable to Diagnose",
                                "00101 ICK or other parasite"}; // another test checks the tree itself
    for (const QString &leaf : leaves) {
        SCOPED_TRACE(leaf.toStdString());
        const QString digits = leaf.section(' ', 0, 0), name = leaf.section(' ', 1);
        const auto advice = AdviceOf(name, DiagnosisWindow::Wizard);
        const QString start = advice.value_or(keeper.g().gMessage).left(18);
        diagnose(digits, {[&](frm_DiagnosisQA &w) {
                     EXPECT_TRUE(w.fra_Diagnosis->isVisible() && !w.cmd_Next->isEnabled());
                     EXPECT_EQ(w.lbl_diagnosis->text(), name);
                     EXPECT_EQ(w.txt_diag_desc->toPlainText().left(18), start);
                     mouse::click(w.cmd_Cancel);
                 }});
        EXPECT_EQ(keeper.told(), advice ? "0" : "0|/0/no diagnosis defined");
        EXPECT_TRUE(lineOf(4).contains(first.answers[size_t(digits[0].digitValue())].text));
        const auto slot = 5 + 2 * digits.size();
        EXPECT_EQ(lineOf(slot) + lineOf(slot + 2).left(18), "DIAGNOSIS: " + name + start);
    }
}

TEST_F(Wizard, AnyPageIsLeftByStartingOver)
{
    const Step startOver = [](frm_DiagnosisQA &w) { mouse::click(w.cmd_StartOver); };
    const Step nothingLeft = [&](frm_DiagnosisQA &w) {
        EXPECT_TRUE(w.AnswerIndex.isEmpty() && w.fra_Disclaimer->isVisible() && lineOf(3).isEmpty());
        w.close();
    };
    for (const char *digits : {"", "00", "4"}) // the first question, the middle of the tree, a diagnosis
        diagnose(digits, {startOver, startOver, nothingLeft});
}
