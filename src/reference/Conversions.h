// The conversions of the calculator: a key of two unit names joined by ">", which both fills its list and selects the
// formula. Plain logic; frm_Conversions shows it. The constants are rounded ones and stand as they are, even where one
// direction is not quite the inverse of the other: keepers know the results.
#pragma once

#include <array>

#include <QString>

struct Conversion
{
    const char *key; ///< matched exactly, its slips of spelling included
    double (*formula)(double);
};

/// In the order of the list.
extern const std::array<Conversion, 40> conversions;

/// The value converted; 0 for a key that is none. Beyond a double it is infinite.
double Convert_Formula(const QString &key, double value);

/// The text before the first ">" of a key, and all that follows it.
QString UnitFrom(const QString &key);
QString UnitTo(const QString &key);
