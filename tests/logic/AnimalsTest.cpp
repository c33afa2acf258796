// The tables of animals keep their own laws; what is asked of them, and the plan of a tank.
#include <algorithm>
#include <gtest/gtest.h>

#include "advisers/Compatibility.h"
#include "advisers/FantasyPlan.h"

namespace {

/// Pairs whose letters differ, as "2-13".
QStringList lopsidedPairs(WaterKind water, int count)
{
    QStringList pairs;
    for (int one = 1; one <= count; ++one)
        for (int other = one + 1; other <= count; ++other)
            if (CompatLetter(water, one, other) != CompatLetter(water, other, one))
                pairs << QString("%1-%2").arg(one).arg(other);
    return pairs;
}

} // namespace

TEST(AnimalTables, DifferByWhoIsAskedInThesePairsAlone)
{
    EXPECT_EQ(lopsidedPairs(WaterKind::Fresh, freshAnimalCount).size(), 144);
    EXPECT_EQ(lopsidedPairs(WaterKind::Salt, saltAnimalCount), QStringList({"2-13", "12-30"}));
    std::vector<int> notItsOwn, loners;
    for (int number = 1; number <= saltAnimalCount; ++number) {
        const auto &letters = SaltAnimals[size_t(number)].CompatLetters;
        if (letters[size_t(number) - 1] != 'Y')
            notItsOwn.push_back(number);
        if (std::ranges::count(letters, 'Y') == 1)
            loners.push_back(number);
    }
    EXPECT_EQ(notItsOwn, std::vector{2});
    EXPECT_EQ(loners, std::vector({11, 14, 23, 27, 33}));
}

TEST(Compatibility, SortsTheFirst39AnimalsOfEitherTable)
{
    const CompatLists danios = SortAnimals(WaterKind::Fresh, 50);
    EXPECT_EQ((danios.compatible + danios.maybe + danios.incompatible).size(), 39);
    EXPECT_FALSE(danios.compatible.contains("Zebra Danios"));
}

TEST(FantasyPlan, HoldsByWaterFilterAndShape)
{
    const auto holds = [](double gallons, WaterKind water, bool wetDry, bool taller) {
        FantasyPlan plan;
        plan.RecalcHolding(gallons, water, wetDry, taller);
        return plan.FantasyHolding;
    };
    EXPECT_EQ(holds(55, WaterKind::Salt, true, true), 30);
    EXPECT_EQ(holds(5, WaterKind::Salt, false, true), 2);
    EXPECT_EQ(holds(55, WaterKind::Fresh, true, true), 36);
    FantasyPlan plan{.FantasyTank = {{15, 1, 1}}};
    plan.RecalcHolding(1, WaterKind::Salt, false, false); // holds nothing at all
    EXPECT_EQ(plan.FantasyPercent, 125);
}

TEST(FantasyPlan, WarnsOfWhatTheNewAnimalMeets)
{
    const auto warnings = [](WaterKind water, const std::vector<int> &before, int animal, double howMany) {
        FantasyPlan plan;
        for (const int present : before)
            plan.FantasyTank.push_back({present, 1, 1});
        plan.SelectedAnimal = animal;
        const AddWarnings told = plan.Add(water, howMany, 1);
        return QString(QString::number(told.crowdsOwnKind) + '|' + told.maybe + '|' + told.incompatible);
    };
    EXPECT_EQ(warnings(WaterKind::Salt, {}, 2, 2), "1|Angelfish (Full size), |");
    EXPECT_EQ(warnings(WaterKind::Salt, {}, 2, 0.5), "0|Angelfish (Full size), |");
    EXPECT_EQ(warnings(WaterKind::Salt, {15, 14, 15, 14}, 2, 1),
              "0|Gobies, Gobies, Angelfish (Full size), |Fingerfish, Fingerfish, ");
    EXPECT_EQ(warnings(WaterKind::Salt, {2}, 13, 2), "0||") << "asked the other way round";
    EXPECT_EQ(warnings(WaterKind::Fresh, {48, 50, 31}, 44, 1), "0|Oscars, Snakeheads, |Tiger Barbs, Zebra Danios, ");
    EXPECT_EQ(warnings(WaterKind::Salt, {50}, 45, 3), "0||") << "numbers of the other table";
}
