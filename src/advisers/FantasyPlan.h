// The plan of a tank that does not exist: what was dropped in, how full it would be, and what an animal dropped in
// would meet there. It lives as long as the window of the Fantasy Tank, which shows it; nothing of it is stored. The
// rows stand in the order of the window's list.
#pragma once

#include <vector>

#include <QString>

#include "advisers/AnimalTables.h"

struct FantasyRow
{
    int AnimalNo;   ///< in the table of the water that was set when it was added
    double HowMany; ///< as typed: may be a fraction or negative
    double HowBig;  ///< inches, as typed
};

/// What to warn of when an animal is added. A list of names ends with ", " and is empty where there is nothing to say.
struct AddWarnings
{
    bool crowdsOwnKind = false; ///< two or more of an animal that does not keep its own kind
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
    double FantasyPercent = 0; ///< how full it is, at most 125; below 0 where the sizes typed are

    int FantasyCount() const { return int(FantasyTank.size()); }
    bool isFull() const { return FantasyCount() >= mostRows; }
    /// Sum of all animals' sizes.
    double FantasyInches() const;

    /// Works out FantasyHolding and FantasyPercent for a tank of that many gallons. In salt water the filter counts and
    /// the shape only without it; in fresh water the shape alone counts.
    void RecalcHolding(double gallons, WaterKind water, bool wetDry, bool taller);
    /// Adds SelectedAnimal, by the table of that water; warnings stop nobody. The plan must not be full.
    AddWarnings Add(WaterKind water, double howMany, double howBig);
    /// Takes a row out; rows count from 0.
    void Remove(int row);
    /// The empty plan of a tank of 55 gallons.
    void Reset() { *this = {}; }

private:
    AddWarnings warningsOf(WaterKind water, const FantasyRow &added) const;
};

/// A row as the list shows it: "2 Gobies - 1 in."
QString FantasyLine(WaterKind water, const FantasyRow &row);
