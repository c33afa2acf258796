// The laws of the question tree, of the advice and of the log, and the printed sheet of the diagnosis.
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
std::set<QString> leavesReached;

void walk(QuestionPage page, int questions)
{
    ASSERT_LE(questions, questionPageCount) << "the tree runs in a circle";
    pagesReached.insert(page);
    for (int i = 0; const auto next = FollowAnswer(page, QString::number(i)); ++i)
        if (const auto *name = std::get_if<const char *>(&*next))
            leavesReached.insert(*name);
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

} // namespace

TEST(Diagnosis, EveryPageAndLeafIsReachedAndOneLeafHasNoAdvice)
{
    walk(Question_StartingPoint, 1);
    EXPECT_EQ(pagesReached.size() + 1, size_t(questionPageCount));
    EXPECT_EQ(leavesReached.size(), 19u);
    for (const QString &leaf : leavesReached) {
        const auto advice = AdviceOf(leaf, DiagnosisWindow::Wizard);
        EXPECT_EQ(advice.has_value(), leaf != "Open Sore") << leaf.toStdString();
        EXPECT_EQ(wrapped(advice.value_or("")).join("").trimmed(), advice.value_or("").trimmed())
            << "something is lost";
    }
}

TEST(Diagnosis, AdviceIsWrappedAtEightyCharactersAndAlwaysEnds)
{
    const QString a(40, 'a'), b(39, 'b'), word(200, 'w');
    EXPECT_EQ(wrapped(a + ' ' + b + 'c').join('|'), a + "| " + b + 'c') << "81 do not";
    EXPECT_EQ(wrapped(a + ' ' + b + ' ').join('|'), a + ' ' + b) << "a last single character gets no line";
    EXPECT_EQ(wrapped(word).join('|'), QString(80, 'w') + '|' + QString(80, 'w') + '|' + QString(40, 'w'));
    DiagnosisLog log; // two runs without a reset would pass the end, and a vast text that of the count's 16 bits
    for (int run = 0; run < 2; ++run)
        log.AddDiagnosis("X", word.repeated(20'000));
    EXPECT_EQ(log.AnswerLogCount, 60);
}

TEST(Diagnosis, TheSheetHoldsEveryLineWithinItsWidth)
{
    DiagnosisLog log;
    log.ResetAnswerLog();
    log.AddAnswer(QuestionOf(Question_StartingPoint).text, QuestionOf(Question_StartingPoint).answers[0].text);
    log.AddDiagnosis("Dropsy", AdviceOf("Dropsy", DiagnosisWindow::Wizard).value());
    std::vector<PrintedDocument> documents;
    RecordedPages pages(documents);
    Printer page(pages, {});
    MakeDiagnosisSheet(log, DiagnosisWindow::Wizard).print(page);
    QString printed, logged;
    for (const PrintedText &text : documents.at(0).pages.at(0).texts) {
        EXPECT_LE(text.right, 800.5) << text.text.toStdString();
        printed += text.text + ' ';
    }
    for (size_t slot = 2; slot < log.AnswerLog.size(); ++slot)
        logged += log.AnswerLog[slot] + ' ';
    EXPECT_TRUE(printed.simplified().remove(' ').contains(logged.simplified().remove(' '))) << printed.toStdString();
    EXPECT_EQ(printed.count(QString(84, '_')), 10) << "for the dealer or vet";
}
