// The laws of the question tree, of the advice and of the log, and the printed sheet of the diagnosis.
#include <algorithm>
#include <map>
#include <ranges>
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

std::set<QuestionPage> pagesReached;
std::map<QString, int> leavesReached; ///< with the most questions on the way

void walk(QuestionPage page, int questions)
{
    ASSERT_LE(questions, questionPageCount) << "the tree runs in a circle";
    pagesReached.insert(page);
    for (int i = 0; const auto next = FollowAnswer(page, QString::number(i)); ++i)
        if (const auto *name = std::get_if<const char *>(&*next))
            leavesReached[*name] = qMax(leavesReached[*name], questions);
        else
            walk(std::get<QuestionPage>(*next), questions + 1);
}

QStringList wrapped(const QString &advice)
{
    DiagnosisLog log;
    log.ResetAnswerLog();
    log.AddDiagnosis("X", advice);
    QStringList lines;
    for (size_t slot = 7; !log.AnswerLog[slot].isEmpty(); ++slot)
        lines << log.AnswerLog[slot];
    return lines;
}

/// The sheet of a run through these answers, its lines between bars: "*" before bold and italic, the size, the text.
QString printed(const std::vector<int> &answers, DiagnosisWindow window, const QString &message = {})
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
    log.AddDiagnosis(name, AdviceOf(name, window).value_or(message));
    std::vector<PrintedDocument> documents;
    RecordedPages pages(documents);
    Printer page(pages, {});
    MakeDiagnosisSheet(log, window).print(page);
    QStringList lines;
    double bottom = 0;
    for (const PrintedPage &made : documents.at(0).pages)
        for (const PrintedText &text : made.texts) {
            for (; text.y > bottom + 1; bottom += 10 * 100 / 72.0 * 1.2)
                lines << "";
            lines << (text.font.bold && text.font.italic ? "*" : "") + QString::number(text.font.size) + ' ' +
                         text.text;
            bottom = text.y + text.font.size * 100 / 72 * 1.2;
            EXPECT_TRUE(text.font.name == "Arial" && text.right <= 800.5) << text.text.toStdString();
        }
    const PrintedText &title = documents[0].pages[0].texts[0], &notice = documents[0].pages.back().texts.back();
    EXPECT_NEAR(title.x + title.right, 800, 0.01) << "in the middle";
    EXPECT_TRUE(notice.y == 800 && notice.font.italic && notice.font.size == 9) << "1000 / 60 is 16, times 50";
    EXPECT_TRUE(documents.size() == 1 && documents[0].ended);
    return lines.join('|');
}

} // namespace

TEST(Diagnosis, EveryPageAndLeafIsReachedAndOneLeafHasNoAdvice)
{
    EXPECT_TRUE(FollowAnswer(Question_Disclaimer, "") && !FollowAnswer(Question_Disclaimer, "99"));
    EXPECT_FALSE(FollowAnswer(Question_StartingPoint, "99"));
    walk(Question_StartingPoint, 1);
    EXPECT_EQ(pagesReached.size() + 1, size_t(questionPageCount));
    EXPECT_EQ(leavesReached.size(), 19u);
    EXPECT_EQ(std::ranges::max(leavesReached | std::views::values), 6);
    for (const auto &[leaf, questions] : leavesReached) {
        const auto wizard = AdviceOf(leaf, DiagnosisWindow::Wizard), own = AdviceOf(leaf, DiagnosisWindow::OwnWindow);
        EXPECT_EQ(wizard.has_value(), leaf != "Open Sore") << leaf.toStdString();
        EXPECT_EQ(wizard == own, leaf != "Unable to Diagnose") << leaf.toStdString();
        const QStringList lines = wrapped(wizard.value_or(""));
        EXPECT_EQ(lines.join("").trimmed(), wizard.value_or("").trimmed()) << "nothing is lost but a last blank";
        for (const QString &line : lines.mid(1))
            EXPECT_TRUE(line.startsWith(' ') && line.size() <= 80) << line.toStdString();
    }
}

TEST(Diagnosis, AdviceIsWrappedAtEightyCharactersAndAlwaysEnds)
{
    const QString a(40, 'a'), b(39, 'b'), word(200, 'w');
    EXPECT_EQ(wrapped(a + ' ' + b).join('|'), a + ' ' + b) << "80 fit";
    EXPECT_EQ(wrapped(a + ' ' + b + 'c').join('|'), a + "| " + b + 'c') << "81 do not";
    EXPECT_EQ(wrapped(a + ' ' + b + ' ').join('|'), a + ' ' + b) << "a last single character gets no line";
    EXPECT_EQ(wrapped(word).join('|'), QString(80, 'w') + '|' + QString(80, 'w') + '|' + QString(40, 'w'));
    DiagnosisLog log; // two runs without a reset would pass the end, and a vast text that of the count's 16 bits
    for (int run = 0; run < 2; ++run)
        log.AddDiagnosis("X", word.repeated(20'000));
    EXPECT_EQ(log.AnswerLogCount, 60);
}

TEST(Diagnosis, TheSheetIsLaidOutAsDealersKnowIt)
{
    const QString ick = printed({0, 0, 1, 0, 1}, DiagnosisWindow::Wizard); // the longest text on its longest path
    for (const char *passage :
         {"*14 Ostrelmark for Windows - Disease Diagnosis Aid|9 REMINDER: This program is only",
          "medicating your aquarium or animals.|||10 Q: Look at the animal's body shape and condition, as well as the "
          "condition of it's fins.|*10   A:The fish's body shape is fine, it's fins seem OK also.||10 Q: How would",
          "hanging onto or|10 trailing from them?|*10   A:No, I cannot see anything like that.|||10 DIAGNOSIS: ICK or "
          "other parasite||10   Your fish probably has 1 of several types",
          "any medicinal treatment.||||10 Dealer or Vet's Comments ____"})
        EXPECT_TRUE(ick.contains(passage)) << passage << '\n' << ick.toStdString();
    EXPECT_EQ(ick.count("|10 " + QString(84, '_')), 10);
    EXPECT_TRUE(printed({0, 0, 0, 2}, DiagnosisWindow::Wizard, "ERROR 61 occurred.")
                    .contains("sores on the fish.|||10 DIAGNOSIS: Open Sore||10 ERROR 61 occurred.||||10 Dealer or"));
    EXPECT_TRUE(printed({0, 0, 0, 3}, DiagnosisWindow::Wizard).contains("|10    Beware, however,"));
    const QString own = printed({2, 0}, DiagnosisWindow::OwnWindow);
    EXPECT_TRUE(own.startsWith("*14 Ostrelmark for Windows - Marine Disease Diagnosis Aid||10 Q: Look at"));
    EXPECT_TRUE(own.contains("localized swelling|10 Q: Can you")) << "no blank line before a question";
}
