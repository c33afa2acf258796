// The laws of the question tree, of the advice and of the log, and the printed sheet of the diagnosis.
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "advisers/Diagnoses.h"
#include "advisers/DiagnosisLog.h"
#include "advisers/DiagnosisSheet.h"
#include "advisers/QuestionTree.h"
#include "platform/Printer.h"
#include "support/ScriptedDoors.h"

namespace {

using enum QuestionPage;

struct Reached
{
    std::set<QuestionPage> pages;
    std::map<QString, int> leaves; ///< with the most questions on the way
};

void walk(QuestionPage page, int questions, Reached &reached)
{
    ASSERT_LE(questions, questionPageCount) << "the tree runs in a circle";
    reached.pages.insert(page);
    for (int i = 0; const auto next = FollowAnswer(page, QString::number(i)); ++i) {
        if (const auto *name = std::get_if<const char *>(&*next))
            reached.leaves[*name] = qMax(reached.leaves[*name], questions);
        else
            walk(std::get<QuestionPage>(*next), questions + 1, reached);
        if (page == Question_Disclaimer)
            break; // goes on by anything
    }
}

/// Lines of the log that the advice was wrapped into, with the diagnosis of a run without questions.
QStringList wrapped(const QString &advice)
{
    DiagnosisLog log;
    log.ResetAnswerLog();
    log.AddDiagnosis("X", advice);
    QStringList lines;
    for (size_t slot = 7; slot < log.AnswerLog.size() && !log.AnswerLog[slot].isEmpty(); ++slot)
        lines << log.AnswerLog[slot];
    return lines;
}

/// Runs through the answers and completes the log.
DiagnosisLog logOf(const std::vector<int> &answers, const QString &message)
{
    DiagnosisLog log;
    log.ResetAnswerLog();
    LeadsTo next = Question_StartingPoint;
    for (const int answer : answers) {
        const Question &question = QuestionOf(std::get<QuestionPage>(next));
        log.AddAnswer(question.text, question.answers[answer].text);
        next = question.answers[answer].leadsTo;
    }
    const QString name = std::get<const char *>(next);
    log.AddDiagnosis(name, AdviceOf(name, DiagnosisWindow::Wizard).value_or(message));
    return log;
}

/// A sheet as lines: "*" before bold and italic, "/" before italic; heights in lines of 10 points.
QStringList printed(const DiagnosisLog &log, DiagnosisWindow window)
{
    std::vector<PrintedDocument> documents;
    RecordedPages pages(documents);
    const Report sheet = MakeDiagnosisSheet(log, window);
    Printer page(pages, sheet.documentName);
    sheet.print(page);
    EXPECT_TRUE(documents.size() == 1 && documents[0].ended);
    QStringList lines;
    for (const PrintedPage &made : documents.at(0).pages) {
        double bottom = 0;
        for (const PrintedText &text : made.texts) {
            for (; text.y > bottom + 1; bottom += 10 * 100 / 72.0 * 1.2)
                lines << "";
            const QString marks = text.font.bold ? "*" : text.font.italic ? "/" : "";
            lines << marks + QString::number(text.font.size) + ' ' + text.text;
            bottom = text.y + text.font.size * 100 / 72 * 1.2;
            EXPECT_TRUE(text.font.name == "Arial" && text.right <= 800.5) << text.text.toStdString();
        }
    }
    return lines;
}

} // namespace

TEST(Diagnosis, EveryPageAndLeafIsReachedAndOneLeafHasNoAdvice)
{
    Reached reached;
    walk(Question_Disclaimer, 0, reached);
    EXPECT_EQ(reached.pages.size(), size_t(questionPageCount));
    EXPECT_EQ(reached.leaves.size(), 19u);
    int longest = 0;
    for (const auto &[name, questions] : reached.leaves) {
        EXPECT_EQ(AdviceOf(name, DiagnosisWindow::Wizard).has_value(), name != "Open Sore") << name.toStdString();
        longest = qMax(longest, questions);
    }
    EXPECT_EQ(longest, 6);
    EXPECT_EQ(reached.leaves["ICK or other parasite"], 5);
    for (const char *none : {"99", "", "6"})
        EXPECT_FALSE(FollowAnswer(Question_StartingPoint, none)) << none;
    EXPECT_FALSE(FollowAnswer(Question_Disclaimer, "99"));
    EXPECT_TRUE(FollowAnswer(Question_Disclaimer, ""));
    for (const auto &[name, questions] : reached.leaves) {
        const auto wizard = AdviceOf(name, DiagnosisWindow::Wizard), own = AdviceOf(name, DiagnosisWindow::OwnWindow);
        EXPECT_EQ(wizard == own, name != "Unable to Diagnose");
        if (wizard) { // wrapped before blanks, and nothing of it lost but a last blank
            EXPECT_EQ(wrapped(*wizard).join("").trimmed(), wizard->trimmed()) << name.toStdString();
            for (const QString &line : wrapped(*wizard).mid(1))
                EXPECT_TRUE(line.startsWith(' ') && line.size() <= 80) << line.toStdString();
        }
    }
}

TEST(Diagnosis, AdviceIsWrappedAtEightyCharactersAndAlwaysEnds)
{
    const QString a(40, 'a'), b(39, 'b'), word(200, 'w');
    EXPECT_EQ(wrapped(a + ' ' + b), QStringList(a + ' ' + b)) << "80 fit";
    EXPECT_EQ(wrapped(a + ' ' + b + 'c'), QStringList({a, ' ' + b + 'c'})) << "81 do not";
    EXPECT_EQ(wrapped(""), QStringList());
    EXPECT_EQ(wrapped(a + ' ' + b + " c").join('|'), a + ' ' + b + "| c");
    EXPECT_EQ(wrapped(a + ' ' + b + ' ').join('|'), a + ' ' + b) << "a last single character gets no line";
    EXPECT_EQ(wrapped(word).join('|'), QString(80, 'w') + '|' + QString(80, 'w') + '|' + QString(40, 'w'));
    DiagnosisLog log; // two runs without a reset would pass the end
    for (int run = 0; run < 2; ++run)
        log.AddDiagnosis("X", word.repeated(20));
    EXPECT_EQ(log.AnswerLogCount, 60);
}

TEST(Diagnosis, SheetOfTheLongestTextOnItsLongestPath)
{
    const DiagnosisLog log = logOf({0, 0, 1, 0, 1}, {});
    const QStringList lines = printed(log, DiagnosisWindow::Wizard);
    const QString text = lines.join('|');
    EXPECT_TRUE(text.startsWith("*14 Ostrelmark for Windows - Disease Diagnosis Aid|9 REMINDER: This program is only"));
    EXPECT_TRUE(text.contains("medicating your aquarium or animals.|||10 Q: Look at the animal's body shape and "
                              "condition, as well as the condition of it's fins.|*10   A:The fish's body shape is "
                              "fine, it's fins seem OK also.||10 Q: How would"));
    EXPECT_TRUE(
        text.contains("hanging onto or|10 trailing from them?|*10   A:No, I cannot see anything like that.|||10 "
                      "DIAGNOSIS: ICK or other parasite||10   Your fish probably has 1 of several types"));
    EXPECT_TRUE(text.contains("any medicinal treatment.||||10 Dealer or Vet's Comments ____"));
    EXPECT_EQ(text.count("|10 " + QString(84, '_')), 10);
    EXPECT_GE(text.count("|10  "), 20) << "wrapped lines begin with their blank";
    EXPECT_EQ(log.AnswerLogCount, 60);
    EXPECT_TRUE(lines.last().startsWith("/9 Ostrelmark 98"));
}

TEST(Diagnosis, SheetOfADiagnosisWithoutAdviceShowsTheLastMessage)
{
    const QStringList wizard = printed(logOf({0, 0, 0, 2}, "ERROR 61 occurred."), DiagnosisWindow::Wizard);
    EXPECT_TRUE(
        wizard.join('|').contains("|*10   A:There are OPEN red wounds or sores on the fish.|||10 DIAGNOSIS: Open "
                                  "Sore||10 ERROR 61 occurred.||||10 Dealer or Vet's Comments"));
    std::vector<PrintedDocument> documents;
    RecordedPages pages(documents);
    Printer page(pages, {});
    MakeDiagnosisSheet(logOf({2, 0}, {}), DiagnosisWindow::Wizard).print(page);
    const PrintedText *title = documents[0].pages[0].find("Ostrelmark for Windows - Disease Diagnosis Aid");
    EXPECT_NEAR(title->x + title->right, 800, 0.01);
    EXPECT_EQ(documents[0].pages[0].texts.back().y, 800) << "1000 / 60 is 16, times 50";
    const QString own = printed(logOf({2, 0}, {}), DiagnosisWindow::OwnWindow).join('|');
    EXPECT_TRUE(own.startsWith("*14 Ostrelmark for Windows - Marine Disease Diagnosis Aid||10 Q: Look at"));
    EXPECT_TRUE(own.contains("localized swelling|10 Q: Can you")) << "no blank line before a question";
    EXPECT_TRUE(printed(logOf({0, 0, 0, 3}, {}), DiagnosisWindow::Wizard).join('|').contains("|10    Beware, however,"))
        << "a carriage return begins a new line";
}
