// The conversions of the calculator. A key is two unit names joined by ">"; it fills the list of the calculator and
// selects the formula. The constants are rounded on purpose, even where one direction is not quite the inverse of the
// other: keepers know the results.
#pragma once

#include <array>

#include <QString>

struct Conversion
{
    const char *key; ///< compared exactly, spelling slips included
    double (*formula)(double);
};

/// In the order of the list.
extern const std::array<Conversion, 40> conversions;

/// The converted value; 0 for an unknown key, infinite if it does not fit into a double.
double Convert_Formula(const QString &key, double value);

/// The text before the first ">" of a key, and everything after it.
QString UnitFrom(const QString &key);
QString UnitTo(const QString &key);
