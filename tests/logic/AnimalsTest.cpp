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

/// Numbers of the salt animals that are so.
std::vector<int> saltAnimals(const std::function<bool(const AnimalRow &)> &condition)
{
    std::vector<int> numbers;
    for (int number = 1; number <= saltAnimalCount; ++number)
        if (condition(SaltAnimals[size_t(number)]))
            numbers.push_back(number);
    return numbers;
}

} // namespace

TEST(AnimalTables, OfTheSea)
{
    using Numbers = std::vector<int>;
    const auto own = [](const AnimalRow &row) { return row.CompatLetters[size_t(row.Number) - 1]; };
    EXPECT_EQ(lopsidedPairs(WaterKind::Salt, saltAnimalCount), QStringList({"2-13", "12-30"}));
    EXPECT_EQ(saltAnimals([&](const AnimalRow &row) { return own(row) != 'Y'; }), Numbers{2});
    EXPECT_EQ(saltAnimals([](const AnimalRow &row) { return std::ranges::count(row.CompatLetters, 'Y') == 1; }),
              Numbers({11, 14, 23, 27, 33}));
    // A size stands behind 26 characters in the first nine rows, behind 25 in the others; three are not the usual ones.
    const auto sizeAt = [](const AnimalRow &row) { return size_t(row.Number < 10 ? 26 : 25); };
    EXPECT_EQ(saltAnimals([&](const AnimalRow &row) { return row.AnimalName.substr(sizeAt(row) + 1) != " in."; }),
              Numbers{});
    EXPECT_EQ(saltAnimals([&](const AnimalRow &row) { return row.AnimalName[sizeAt(row)] != '0' + row.TypicalSize; }),
              Numbers({3, 9, 22}));
}

TEST(AnimalTables, OfFreshWaterFollowTheTemperaments)
{
    const std::string_view temperaments[] = {FreshAnimals[1].CompatLetters, FreshAnimals[2].CompatLetters,
                                             FreshAnimals[4].CompatLetters};
    const char *const rule[] = {"MMN", "NMM", "NMY"};
    const auto temperament = [&](int number) {
        return std::ranges::find(temperaments, FreshAnimals[size_t(number)].CompatLetters) - temperaments;
    };
    for (int one = 1; one <= freshAnimalCount; ++one) {
        ASSERT_LT(temperament(one), 3) << one;
        EXPECT_EQ(FreshAnimals[size_t(one)].KeepsOwnKind, '\0') << one;
        for (int other = 1; other <= freshAnimalCount; ++other)
            EXPECT_EQ(CompatLetter(WaterKind::Fresh, one, other), rule[temperament(one)][temperament(other)])
                << one << ' ' << other;
    }
    EXPECT_EQ(lopsidedPairs(WaterKind::Fresh, freshAnimalCount).size(), 144);
}

TEST(Compatibility, SortsTheFirst39AnimalsOfEitherTable)
{
    const CompatLists drums = SortAnimals(WaterKind::Salt, 11), danios = SortAnimals(WaterKind::Fresh, 50);
    EXPECT_EQ(drums.compatible, QStringList("Drums/High Hats          3 in."));
    EXPECT_EQ(drums.incompatible.size(), 38);
    EXPECT_EQ((danios.compatible + danios.maybe + danios.incompatible).size(), 39);
    EXPECT_FALSE(danios.compatible.contains("Zebra Danios"));
    int loners = 0;
    for (int number = 1; number <= freshAnimalCount; ++number)
        loners += SortAnimals(WaterKind::Fresh, number).compatible.isEmpty();
    EXPECT_EQ(loners, 24);
}

TEST(FantasyPlan, HoldsByWaterFilterAndShape)
{
    const struct
    {
        double gallons;
        WaterKind water;
        bool wetDry, taller;
        double holds;
    } tanks[] = {{55, WaterKind::Salt, false, false, 27}, {55, WaterKind::Salt, true, true, 30},
                 {55, WaterKind::Salt, false, true, 24},  {5, WaterKind::Salt, false, true, 2},
                 {55, WaterKind::Fresh, true, false, 45}, {55, WaterKind::Fresh, true, true, 36}};
    for (const auto &tank : tanks) {
        FantasyPlan plan;
        plan.RecalcHolding(tank.gallons, tank.water, tank.wetDry, tank.taller);
        EXPECT_EQ(plan.FantasyHolding, tank.holds);
    }
    FantasyPlan plan{.FantasyTank = {{15, 1, 1}}};
    plan.RecalcHolding(1, WaterKind::Salt, false, false); // holds nothing at all
    EXPECT_EQ(plan.FantasyPercent, 125);
}

TEST(FantasyPlan, WarnsOfWhatTheNewAnimalMeets)
{
    const struct
    {
        WaterKind water;
        std::vector<int> before; ///< animals that are in the tank, and then how many of which one come
        int animal;
        double howMany;
        const char *warnings; ///< own kind, maybe, not
    } adds[] = {
        {WaterKind::Salt, {}, 2, 1, "0||"},
        {WaterKind::Salt, {}, 2, 2, "1|Angelfish (Full size), |"},
        {WaterKind::Salt, {}, 2, 0.5, "0|Angelfish (Full size), |"},
        {WaterKind::Salt, {13}, 2, 1, "0|Angelfish (Full size), |Filefish, "},
        {WaterKind::Salt, {2}, 13, 2, "0||"}, // asked the other way round
        {WaterKind::Salt, {15, 14, 15, 14}, 2, 1, "0|Gobies, Gobies, Angelfish (Full size), |Fingerfish, Fingerfish, "},
        {WaterKind::Fresh, {48, 50, 31}, 44, 1, "0|Oscars, Snakeheads, |Tiger Barbs, Zebra Danios, "},
        {WaterKind::Salt, {50}, 45, 3, "0||"}, // numbers of the other table
    };
    for (const auto &add : adds) {
        SCOPED_TRACE(add.animal);
        FantasyPlan plan;
        for (const int animal : add.before)
            plan.FantasyTank.push_back({animal, 1, 1});
        plan.SelectedAnimal = add.animal;
        const AddWarnings warnings = plan.Add(add.water, add.howMany, 1);
        EXPECT_EQ(QString(QString::number(warnings.crowdsOwnKind) + '|' + warnings.maybe + '|' + warnings.incompatible)
                      .toStdString(),
                  add.warnings);
    }
}
