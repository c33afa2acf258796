#include <QRadioButton>

#include "advisers/Diagnoses.h"
#include "advisers/frm_DiagDiagnosis.h"
#include "advisers/frm_DiagnosisQA.h"
#include "Hands.h"

/// The wizard, gone through page by page: each step runs when the window is in front again.
class Wizard : public ::testing::Test
{
protected:
    using Step = std::function<void(frm_DiagnosisQA &)>;

    Wizard() : main(keeper.startProgram()) { keeper.told(); }
    ~Wizard() override { EXPECT_EQ(keeper.told(), "0"); }

    /// Opens the wizard and takes the steps; after the last one it must be closed.
    void play(std::vector<Step> steps)
    {
        EXPECT_TRUE(isInFront(main));
        playIn([&] { hand::press(Qt::Key_D, Qt::ControlModifier); }, std::move(steps));
    }
    void playIn(const std::function<void()> &open, std::vector<Step> steps)
    {
        size_t next = 0;
        bool busy = false;
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, [&] {
            auto *window = Forms::current().loaded<frm_DiagnosisQA>();
            if (busy || !window || !window->isVisible())
                return;
            busy = true;
            EXPECT_TRUE(isInFront(*window));
            EXPECT_FALSE(window->cmd_Back->isEnabled());
            EXPECT_FALSE(main.mnu_FilePrint->isEnabled());
            if (next < steps.size()) {
                steps[next++](*window);
            } else {
                ADD_FAILURE() << "the wizard is still open";
                window->close();
            }
            busy = false;
        });
        watch.start(0);
        open();
        EXPECT_EQ(next, steps.size()) << "the wizard went too early";
        EXPECT_TRUE(main.WizardCancelled && !Forms::current().loaded<frm_DiagnosisQA>());
    }
    static Step click(const char *button)
    {
        return [button](frm_DiagnosisQA &w) { hand::click<QPushButton>(w, button); };
    }
    /// Next on the disclaimer, and an answer a page, as digits.
    static std::vector<Step> answers(const char *digits)
    {
        std::vector<Step> steps{[](frm_DiagnosisQA &w) {
            EXPECT_TRUE(w.fra_Disclaimer->isVisible() && !w.lbl_Question->isVisible() && !w.fra_Diagnosis->isVisible());
            mouse::click(w.cmd_Next);
        }};
        for (; *digits; ++digits)
            steps.push_back([digit = *digits](frm_DiagnosisQA &w) {
                EXPECT_TRUE(w.lbl_Question->isVisible() && !w.fra_Disclaimer->isVisible());
                EXPECT_FALSE(w.cmd_Next->isEnabled() || w.cmd_PrintQuestionsandAnswers->isEnabled());
                for (const auto *option : w.Frame1->findChildren<QRadioButton *>())
                    EXPECT_FALSE(option->isChecked());
                auto &option = control<QRadioButton>(w, QString("opt_Answer_") + digit);
                mouse::click(&option, QPoint(8, option.height() / 2));
                EXPECT_TRUE(option.isChecked());
                mouse::click(w.cmd_Next);
            });
        return steps;
    }
    /// One run to a diagnosis, and what is done on its page; other steps may follow.
    void diagnose(const char *digits, std::vector<Step> then)
    {
        std::vector<Step> steps = answers(digits);
        steps.insert(steps.end(), then.begin(), then.end());
        play(std::move(steps));
    }
    QString lineOf(size_t slot) { return keeper.g().diagnosisLog.AnswerLog[slot]; }

    Keeper keeper;
    frm_OMKMDIMain &main;
};

TEST_F(Wizard, EveryDiagnosisIsReachedByClicks)
{
    const struct
    {
        const char *answers, *name;
    } leaves[] = {
        {"20", "Dropsy"},
        {"4", "Popeye"},
        {"3", "Diarrhoea"},
        {"10", "Fin Rot"},
        {"11", "Bacterial Infection"},
        {"21", "Bacterial Infection"},
        {"00011", "Bacterial Infection"},
        {"22", "Lymphocyctis"},
        {"12", "Fin Nipping"},
        {"13", "Fin Nipping"},
        {"50", "Unable to Diagnose"},
        {"000000", "Unable to Diagnose"},
        {"51", "Loss of Appetite"},
        {"52", "Failure to Acclimate"},
        {"001202", "Failure to Acclimate"},
        {"03", "Bullying or Failure to Acclimate"},
        {"01", "Possible poisoning or stress"},
        {"02", "Swim Bladder problem"},
        {"0003", "Fungus"},
        {"00001", "Fungus"},
        {"0011", "ICK or other parasite"},
        {"00101", "ICK or other parasite"},
        {"00002", "Chilodonella"},
        {"00100", "Gill Flukes"},
        {"00010", "Lateral Line Disease"},
        {"0002", "Open Sore"},
    };
    for (const auto &leaf : leaves) {
        SCOPED_TRACE(leaf.answers);
        diagnose(leaf.answers, {[&](frm_DiagnosisQA &w) {
                     EXPECT_TRUE(w.fra_Diagnosis->isVisible() && !w.lbl_Question->isVisible());
                     EXPECT_TRUE(w.cmd_PrintQuestionsandAnswers->isEnabled() && !w.cmd_Next->isEnabled());
                     EXPECT_EQ(w.lbl_diagnosis->text(), leaf.name);
                     mouse::click(w.cmd_Cancel);
                 }});
        const auto advice = AdviceOf(leaf.name, DiagnosisWindow::Wizard);
        EXPECT_EQ(keeper.told(), advice ? "0" : "0|/0/no diagnosis defined");
        if (advice) {
            EXPECT_EQ(keeper.g().gMessage, *advice);
        }
        EXPECT_EQ(lineOf(3 + 2 * strlen(leaf.answers) + 2), QString("DIAGNOSIS: ") + leaf.name);
    }
}

TEST_F(Wizard, ADiagnosisWithoutAdviceShowsWhateverWasSaidLast)
{
    keeper.g().gMessage = "You must first select a log entry to delete";
    for (const char *shown : {"You must first select a log entry to delete", "Your fish probably has \"DIARRHOEA\""})
        diagnose("0002", {[&](frm_DiagnosisQA &w) {
                              EXPECT_EQ(keeper.told(), "0|/0/no diagnosis defined");
                              EXPECT_TRUE(w.txt_diag_desc->toPlainText().startsWith(shown));
                              EXPECT_TRUE(lineOf(15).startsWith(shown)) << "after four answers";
                              mouse::click(w.cmd_StartOver);
                          },
                          click("cmd_Next"), [](frm_DiagnosisQA &w) { hand::click<QRadioButton>(w, "opt_Answer_3"); },
                          click("cmd_Next"), click("cmd_Cancel")});
}

TEST_F(Wizard, EveryPageIsLeftByCancelAndByStartingOver)
{
    const Step ways[] = {click("cmd_Cancel"), [](frm_DiagnosisQA &) { hand::press(Qt::Key_Escape); },
                         [](frm_DiagnosisQA &w) { w.close(); }};
    for (const Step &way : ways) {
        play({way});
        for (const char *digits : {"", "0", "00", "4"}) // the first, the middle of the tree, a diagnosis
            diagnose(digits, {way});
    }
    std::vector<Step> steps{click("cmd_StartOver")};
    for (const char *digits : {"", "00", "4"}) {
        const auto run = answers(digits);
        steps.insert(steps.end(), run.begin(), run.end());
        steps.push_back(click("cmd_StartOver"));
    }
    steps.push_back([&](frm_DiagnosisQA &w) {
        EXPECT_TRUE(w.AnswerIndex.isEmpty() && w.fra_Disclaimer->isVisible());
        EXPECT_TRUE(lineOf(3).isEmpty() && lineOf(60).isEmpty() && keeper.g().diagnosisLog.AnswerLogCount == 3);
        mouse::click(w.cmd_Cancel);
    });
    play(std::move(steps));
}

TEST_F(Wizard, TheKeyboardIsEnough)
{
    playIn([&] { hand::click<QToolButton>(main, "diagnose"); },
           {[](frm_DiagnosisQA &) { hand::press(Qt::Key_Return); },
            [](frm_DiagnosisQA &w) {
                hand::press(Qt::Key_Return); // no answer yet
                EXPECT_TRUE(w.isVisible() && w.AnswerIndex.isEmpty());
                for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Space})
                    hand::press(key);
                EXPECT_EQ(w.AnswerIndex, "2");
                hand::press(Qt::Key_Return);
            },
            [](frm_DiagnosisQA &w) {
                EXPECT_EQ(w.lbl_Question->text(), "Can you describe how the swellings look?");
                hand::press(Qt::Key_Escape);
            }});
    EXPECT_EQ(lineOf(4), "  A:The fish's body is swollen, or has localized swelling");
}

TEST_F(Wizard, PrintsACopyADocumentAsOftenAsWanted)
{
    diagnose("00101", {[&](frm_DiagnosisQA &w) {
                 mouse::click(w.cmd_PrintQuestionsandAnswers); // cancelled
                 EXPECT_TRUE(keeper.doors.documents.empty() && w.isVisible());
                 for (const int copies : {3, 1}) {
                     keeper.doors.printers = {PrintDialogAnswer{copies, 0, 0, "Laser", {}}};
                     mouse::click(w.cmd_PrintQuestionsandAnswers);
                 }
                 mouse::click(w.cmd_Cancel);
             }});
    ASSERT_EQ(keeper.doors.printDialogs.size(), 3u);
    EXPECT_EQ(keeper.doors.printDialogs[0].title, "Print Questions and Answers");
    ASSERT_EQ(keeper.doors.documents.size(), 4u);
    for (const PrintedDocument &document : keeper.doors.documents)
        EXPECT_TRUE(document.ended && document.pages.at(0).find("DIAGNOSIS: ICK or other parasite") &&
                    document.pages[0].find("Ostrelmark for Windows - Disease Diagnosis Aid"));
}

TEST_F(Wizard, TheWindowOfItsOwnPrintsAtOnceAndStartsTheQuestions)
{
    const auto show = [] {
        Form<frm_DiagDiagnosis>().DiagnosisName = "Unable to Diagnose";
        Form<frm_DiagDiagnosis>().Showdiagnosis();
    };
    keeper.inNext<frm_DiagDiagnosis>([&](frm_DiagDiagnosis &w) {
        EXPECT_TRUE(w.txt_diag_desc->toPlainText().contains("animals.  look again. Get a good"));
        EXPECT_TRUE(w.txt_diag_desc->toPlainText().contains("a few of the dozens (hundreds maybe) of fish-related"));
        EXPECT_TRUE(main.mnu_FilePrint->isEnabled());
        mouse::click(w.cmd_PrintQuestionsandAnswers);
        mouse::click(w.cmd_Close);
    });
    show();
    EXPECT_TRUE(keeper.doors.printDialogs.empty());
    ASSERT_EQ(keeper.doors.documents.size(), 1u);
    EXPECT_TRUE(keeper.doors.documents[0].pages[0].find("Ostrelmark for Windows - Marine Disease Diagnosis Aid"));
    main.disablePrint();
    keeper.inNext<frm_DiagDiagnosis>([&](frm_DiagDiagnosis &w) {
        playIn([&] { mouse::click(w.Command1); }, {[&](frm_DiagnosisQA &wizard) {
                   EXPECT_FALSE(w.isVisible());
                   EXPECT_TRUE(wizard.opt_Answer_5->isVisible());
                   mouse::click(wizard.cmd_Cancel);
               }});
    });
    show();
}
