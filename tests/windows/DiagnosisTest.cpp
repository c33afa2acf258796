#include "Desk.h"
#include "logic/advisers/Diagnoses.h"
#include "logic/advisers/QuestionTree.h"
#include "windows/advisers/frm_DiagDiagnosis.h"
#include "windows/advisers/frm_DiagnosisQA.h"

/// Goes through the wizard page by page, with the logbook open behind it.
class Wizard : public Desk
{
protected:
    using Step = std::function<void(frm_DiagnosisQA &)>;

    /// Opens the wizard and does the steps, each on the next page. Afterwards it must be closed.
    void play(const std::vector<Step> &steps, const std::function<void()> &open)
    {
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
                w->close();
            ++next;
            atPage.start();
        });
        atPage.start(0);
        open();
        EXPECT_EQ(next, steps.size());
        EXPECT_TRUE(main->WizardCancelled && !Forms::current().loaded<frm_DiagnosisQA>());
        EXPECT_TRUE(isInFront(*main) || QApplication::activeModalWidget());
    }
    /// Opens the wizard by its shortcut, passes the disclaimer, answers a page for each digit, and then does these
    /// steps.
    void diagnose(const char *digits, const std::vector<Step> &then)
    {
        std::vector<Step> steps{[](frm_DiagnosisQA &w) {
            EXPECT_TRUE(w.fra_Disclaimer->isVisible() && !w.lbl_Question->isVisible());
            mouse::click(w.cmd_Next);
        }};
        for (; *digits; ++digits)
            steps.push_back([digit = *digits](frm_DiagnosisQA &w) {
                EXPECT_TRUE(w.lbl_Question->isVisible() && !w.fra_Disclaimer->isVisible());
                EXPECT_FALSE(w.cmd_Next->isEnabled() || w.cmd_PrintQuestionsandAnswers->isEnabled());
                if (digit % 2) { // every second answer by keys alone
                    for (char i = '0'; i < digit; ++i)
                        hand::press(Qt::Key_Down);
                    hand::press(Qt::Key_Space);
                    return hand::press(Qt::Key_Return);
                }
                auto &option = control<QRadioButton>(w, QString("opt_Answer_") + digit);
                mouse::click(&option, QPoint(8, option.height() / 2));
                mouse::click(w.cmd_Next);
            });
        steps.insert(steps.end(), then.begin(), then.end());
        EXPECT_TRUE(isInFront(*main) && main->mnu_FilePrint->isEnabled());
        play(steps, [] { hand::press(Qt::Key_D, Qt::ControlModifier); });
    }
    QString lineOf(size_t slot) { return keeper.g().diagnosisLog.AnswerLog[slot]; }

    const Step cancel = [](frm_DiagnosisQA &w) { mouse::click(w.cmd_Cancel); };
};

TEST_F(Wizard, ItsAnswersLeadToADiagnosisAndTheOneWithoutAdviceShowsWhateverWasSaidLast)
{
    keeper.g().gMessage = "ERROR 61 occurred.";
    const auto &first = QuestionOf(QuestionPage::Question_StartingPoint);
    const QString leaves =
        "0002 Open Sore|4 Popeye|000000 Unable to Diagnose|001202 Failure to Acclimate|01 Possible poisoning or stress|"
        "00101 ICK or other parasite|0002 Open Sore"; // another test checks the tree itself
    for (const QString &leaf : leaves.split('|')) {
        SCOPED_TRACE(leaf.toStdString());
        const QString digits = leaf.section(' ', 0, 0), name = leaf.section(' ', 1);
        const auto advice = AdviceOf(name, DiagnosisWindow::Wizard);
        const QString start = advice.value_or(keeper.g().gMessage).left(18);
        diagnose(digits.toLatin1(), {[&](frm_DiagnosisQA &w) {
                     EXPECT_TRUE(w.fra_Diagnosis->isVisible() && !w.cmd_Next->isEnabled());
                     EXPECT_EQ(w.lbl_diagnosis->text(), name);
                     EXPECT_EQ(w.txt_diag_desc->toPlainText().left(18), start);
                     mouse::click(w.cmd_Cancel);
                 }});
        EXPECT_EQ(keeper.told(), advice ? "0" : "0|/0/no diagnosis defined");
        EXPECT_TRUE(lineOf(4).contains(first.answers[size_t(digits[0].digitValue())].text)) << lineOf(4).toStdString();
        const size_t slot = 3 + 2 * size_t(digits.size()) + 2;
        EXPECT_EQ(lineOf(slot), "DIAGNOSIS: " + name);
        EXPECT_EQ(lineOf(slot + 2).left(18), start);
    }
}

TEST_F(Wizard, StaysOnTheScreenFromPageToPage)
{
    struct Hidings : QObject
    {
        bool eventFilter(QObject *object, QEvent *event) override
        {
            count += event->type() == QEvent::Hide && qobject_cast<frm_DiagnosisQA *>(object);
            return false;
        }
        int count = 0;
    } hidings;
    qApp->installEventFilter(&hidings);
    diagnose("00101", {cancel});
    EXPECT_EQ(hidings.count, 1);
}

TEST_F(Wizard, AnyPageIsLeftByStartingOver)
{
    const Step startOver = [](frm_DiagnosisQA &w) {
        const auto windows = QApplication::topLevelWidgets();
        EXPECT_EQ(std::ranges::count_if(windows, [](QWidget *one) { return qobject_cast<frm_DiagnosisQA *>(one); }), 1)
            << "the window before it is gone";
        mouse::click(w.cmd_StartOver);
    };
    const Step nothingLeft = [&](frm_DiagnosisQA &w) {
        EXPECT_TRUE(w.AnswerIndex.isEmpty() && w.fra_Disclaimer->isVisible() && lineOf(3).isEmpty());
        w.close();
    };
    for (const char *digits : {"", "00", "4"}) // the first question, the middle of the tree, a diagnosis
        diagnose(digits, {startOver, startOver, nothingLeft});
}

TEST_F(Wizard, TheWindowOfItsOwnPrintsAtOnceAndStartsTheQuestions)
{
    keeper.inNext<frm_DiagDiagnosis>([&](frm_DiagDiagnosis &w) {
        EXPECT_TRUE(w.txt_diag_desc->toPlainText().contains("animals.  look again. Get a good"));
        mouse::click(w.cmd_PrintQuestionsandAnswers);
        play({cancel}, [&] { mouse::click(w.Command1); });
    });
    Form<frm_DiagDiagnosis>().DiagnosisName = "Unable to Diagnose";
    Form<frm_DiagDiagnosis>().Showdiagnosis();
    EXPECT_TRUE(keeper.doors.printDialogs.empty());
    EXPECT_TRUE(keeper.doors.documents.at(0).pages[0].find("Ostrelmark for Windows - Marine Disease Diagnosis Aid"));
}
