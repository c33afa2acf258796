// The plan of an imaginary tank: which animals were added, how full the tank would be, and which conflicts a new animal
// would meet. The Fantasy Tank window owns and shows it; nothing is stored. The rows have the order of the window's
// list.
#pragma once

#include <vector>

#include <QString>

#include "logic/advisers/AnimalTables.h"

struct FantasyRow
{
    int AnimalNo;   ///< number in the table of the water type that was chosen when it was added
    double HowMany; ///< as typed; may be fractional or negative
    double HowBig;  ///< inches, as typed
};

/// The warnings for a new animal. A list of names ends with ", " and is empty if there is no warning.
struct AddWarnings
{
    bool crowdsOwnKind = false; ///< two or more of an animal that does not tolerate its own kind
    QString maybe;
    QString incompatible;
};

class FantasyPlan
{
public:
    static constexpr int mostRows = 50;

    std::vector<FantasyRow> FantasyTank;
    int SelectedAnimal = 0; ///< number of the animal being added
    double FantasyGallons = 55;
    double FantasyHolding = 0; ///< whole inches of fish that the tank could hold
    double FantasyPercent = 0; ///< how full it is, at most 125; negative if the typed sizes are

    int FantasyCount() const { return int(FantasyTank.size()); }
    bool isFull() const { return FantasyCount() >= mostRows; }
    /// The total size of all animals.
    double FantasyInches() const;

    /// Calculates FantasyHolding and FantasyPercent for a tank of that many gallons. In salt water the filter counts,
    /// and the shape only without a filter; in fresh water only the shape counts.
    void RecalcHolding(double gallons, WaterKind water, bool wetDry, bool taller);
    /// Adds SelectedAnimal from the table of that water type. Warnings do not prevent it. The plan must not be full.
    AddWarnings Add(WaterKind water, double howMany, double howBig);
    /// Removes a row; rows count from 0.
    void Remove(int row);
    /// Resets the plan to an empty tank of 55 gallons.
    void Reset() { *this = {}; }

private:
    AddWarnings warningsOf(WaterKind water, const FantasyRow &added) const;
};

/// A row as the list shows it: "2 Gobies - 1 in."
QString FantasyLine(WaterKind water, const FantasyRow &row);
