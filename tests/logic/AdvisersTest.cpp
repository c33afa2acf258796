// Tests of the advisers: what their tables of animals, questions and advice must fulfil, the plan of a tank, and the
// log of a diagnosis with its printed sheet.
#include <set>

#include <gtest/gtest.h>

#include "logic/advisers/Compatibility.h"
#include "logic/advisers/Diagnoses.h"
#include "logic/advisers/DiagnosisLog.h"
#include "logic/advisers/DiagnosisSheet.h"
#include "logic/advisers/FantasyPlan.h"
#include "logic/advisers/QuestionTree.h"
#include "platform/core/Printer.h"
#include "support/ScriptedDoors.h"

namespace {

/// How many pairs of animals have a letter that depends on which of them comes first.
int lopsidedPairs(WaterKind water, int count)
{
    int pairs = 0;
    for (int one = 1; one <= count; ++one)
        for (int other = one + 1; other <= count; ++other)
            pairs += CompatLetter(water, one, other) != CompatLetter(water, other, one);
    return pairs;
}

/// Collects the pages and the diagnoses (the leaves of the tree) that the answers lead to.
struct Walked
{
    void from(QuestionPage page, int questions = 1)
    {
        ASSERT_LE(questions, questionPageCount) << "the tree runs in a circle";
        pages.insert(page);
        for (int i = 0; const auto next = FollowAnswer(page, QString::number(i)); ++i)
            if (const auto *name = std::get_if<const char *>(&*next))
                leaves.insert(*name);
            else
                from(std::get<QuestionPage>(*next), questions + 1);
    }
    std::set<QuestionPage> pages;
    std::set<QString> leaves;
};

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

TEST(AnimalTables, AreSymmetricExceptForKnownPairs)
{
    EXPECT_EQ(lopsidedPairs(WaterKind::Fresh, freshAnimalCount), 144);
    EXPECT_EQ(lopsidedPairs(WaterKind::Salt, saltAnimalCount), 2);
    const CompatLists danios = SortAnimals(WaterKind::Fresh, 50);
    EXPECT_EQ((danios.compatible + danios.maybe + danios.incompatible).size(), 39) << "those after are never listed";
}

TEST(FantasyPlan, CapacityDependsOnWaterFilterAndShape)
{
    for (const auto &[gallons, water, wetDry, taller, holds] : {std::tuple{55, WaterKind::Salt, true, true, 30},
                                                                {5, WaterKind::Salt, false, true, 2},
                                                                {55, WaterKind::Fresh, true, true, 36}}) {
        FantasyPlan plan;
        plan.RecalcHolding(gallons, water, wetDry, taller);
        EXPECT_EQ(plan.FantasyHolding, holds);
    }
    FantasyPlan plan{.FantasyTank = {{15, 1, 1}}};
    plan.RecalcHolding(1, WaterKind::Salt, false, false); // such a tank holds nothing
    EXPECT_EQ(plan.FantasyPercent, 125);
}

TEST(FantasyPlan, WarnsAboutAnimalsThatDoNotFit)
{
    const auto warnings = [](WaterKind water, const std::vector<int> &before, int animal, double howMany) {
        FantasyPlan plan;
        plan.SelectedAnimal = animal;
        for (const int present : before)
            plan.FantasyTank.push_back({present, 1, 1});
        const AddWarnings told = plan.Add(water, howMany, 1);
        return QString(QString::number(told.crowdsOwnKind) + '|' + told.maybe + '|' + told.incompatible);
    };
    EXPECT_EQ(warnings(WaterKind::Salt, {}, 2, 2), "1|Angelfish (Full size), |");
    EXPECT_EQ(warnings(WaterKind::Salt, {15, 14, 15, 14}, 2, 0.5),
              "0|Gobies, Gobies, Angelfish (Full size), |Fingerfish, Fingerfish, ");
    EXPECT_EQ(warnings(WaterKind::Salt, {2}, 13, 2), "0||") << "asked the other way round";
    EXPECT_EQ(warnings(WaterKind::Fresh, {48, 50, 31}, 44, 1), "0|Oscars, Snakeheads, |Tiger Barbs, Zebra Danios, ");
}

TEST(Diagnosis, EveryPageAndDiagnosisIsReachable)
{
    Walked walked;
    walked.from(QuestionPage::Question_StartingPoint);
    EXPECT_EQ(walked.pages.size() + 1, size_t(questionPageCount));
    EXPECT_EQ(walked.leaves.size(), 19u);
    for (const QString &leaf : walked.leaves) {
        const auto advice = AdviceOf(leaf, DiagnosisWindow::Wizard);
        EXPECT_EQ(advice.has_value(), leaf != "Open Sore") << leaf.toStdString();
        EXPECT_EQ(wrapped(advice.value_or("")).join("").trimmed(), advice.value_or("").trimmed()) << "lost something";
    }
}

TEST(Diagnosis, AdviceIsWrappedAtEightyCharacters)
{
    const QString a(40, 'a'), b(39, 'b'), word(200, 'w');
    EXPECT_EQ(wrapped(a + ' ' + b + 'c').join('|'), a + "| " + b + 'c') << "81 do not";
    EXPECT_EQ(wrapped(a + ' ' + b + ' ').join('|'), a + ' ' + b) << "a last single character gets no line";
    DiagnosisLog log; // neither two runs without a reset nor a huge text may overflow it or its 16-bit count
    for (int run = 0; run < 2; ++run)
        log.AddDiagnosis("X", word.repeated(20'000));
    EXPECT_EQ(log.AnswerLogCount, 60);
}

TEST(Diagnosis, TheSheetShowsEveryLineOfTheLog)
{
    DiagnosisLog log;
    log.ResetAnswerLog();
    const auto &question = QuestionOf(QuestionPage::Question_StartingPoint);
    log.AddAnswer(question.text, question.answers[0].text);
    log.AddDiagnosis("Dropsy", AdviceOf("Dropsy", DiagnosisWindow::Wizard).value());
    std::vector<PrintedDocument> documents;
    RecordedPages pages(documents);
    Printer page(pages, {});
    MakeDiagnosisSheet(log, DiagnosisWindow::Wizard).print(page);
    QStringList printed, logged;
    for (const PrintedText &text : documents.at(0).pages.at(0).texts) {
        EXPECT_LE(text.right, 800.5) << text.text.toStdString();
        printed << text.text;
    }
    for (size_t slot = 2; slot < log.AnswerLog.size(); ++slot)
        logged << log.AnswerLog[slot];
    EXPECT_TRUE(printed.join("").remove(' ').contains(logged.join("").remove(' '))) << printed.join('|').toStdString();
    EXPECT_FALSE(printed.filter("REMINDER:").isEmpty());
    EXPECT_EQ(printed.count(QString(84, '_')), 10) << "for the dealer or vet";
}
