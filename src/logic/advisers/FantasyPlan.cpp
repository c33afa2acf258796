#include "logic/advisers/FantasyPlan.h"

#include <cmath>

#include "logic/advisers/Compatibility.h"
#include "text/Numbers.h"

namespace {

constexpr double fullest = 125; ///< percent, the end of the bar

/// Gallons of water for an inch of fish, a variation of the old rule of thumb for aquariums.
double gallonsPerInch(WaterKind water, bool wetDry, bool taller)
{
    if (water == WaterKind::Fresh)
        return taller ? 1.5 : 1.2;
    return wetDry ? 1.8 : taller ? 2.2 : 2;
}

} // namespace

double FantasyPlan::FantasyInches() const
{
    double inches = 0; // summed up each time, so that no rounding errors remain in an empty tank
    for (const FantasyRow &row : FantasyTank)
        inches += row.HowMany * row.HowBig;
    return inches;
}

void FantasyPlan::RecalcHolding(double gallons, WaterKind water, bool wetDry, bool taller)
{
    FantasyGallons = gallons;
    // Truncated, not rounded: a tall saltwater tank of 55 gallons holds 24, because 2.2 has no exact binary value.
    FantasyHolding = std::floor(gallons / gallonsPerInch(water, wetDry, taller));
    const double inches = FantasyInches();
    if (FantasyHolding > 0)
        FantasyPercent = 100 * inches / FantasyHolding;
    else // the size is still being typed
        FantasyPercent = inches > 0 ? fullest : 0;
    FantasyPercent = std::fmin(FantasyPercent, fullest);
}

AddWarnings FantasyPlan::Add(WaterKind water, double howMany, double howBig)
{
    const FantasyRow added{SelectedAnimal, howMany, howBig};
    FantasyTank.push_back(added);
    if (FantasyCount() == 1 && howMany == 1)
        return {};
    return warningsOf(water, added);
}

/// The new animal's row is checked against each animal in the tank, including itself, but never the other way round.
AddWarnings FantasyPlan::warningsOf(WaterKind water, const FantasyRow &added) const
{
    AddWarnings warnings;
    warnings.crowdsOwnKind = added.HowMany > 1 && AnimalOf(water, added.AnimalNo).KeepsOwnKind == 'N';
    for (const FantasyRow &row : FantasyTank) {
        const char letter = CompatLetter(water, added.AnimalNo, row.AnimalNo);
        if (letter == 'M')
            warnings.maybe += ShortName(water, row.AnimalNo) + QLatin1String(", ");
        else if (letter == 'N')
            warnings.incompatible += ShortName(water, row.AnimalNo) + QLatin1String(", ");
    }
    return warnings;
}

void FantasyPlan::Remove(int row) { FantasyTank.erase(FantasyTank.begin() + row); }

QString FantasyLine(WaterKind water, const FantasyRow &row)
{
    return PlainText(row.HowMany) + u' ' + ShortName(water, row.AnimalNo) + QLatin1String(" - ") +
           PlainText(row.HowBig) + QLatin1String(" in.");
}
