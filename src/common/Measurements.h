// The thirteen measurements of a water test, one row each: the column, what the entry window shows and tests, what the
// list shows. Entry window, list, graph and reports all read this one table, so that a measurement is described once.
#pragma once

#include <array>

#include <QString>

struct Measurement
{
    const char *column;    ///< of WATERLOG
    const char *label;     ///< caption in the entry window; of the user's own two the stored one
    const char *labelName; ///< name of that label where windows know it by name
    const char *box;       ///< names of the entry box and of its up-down
    const char *upDown;
    const char *toolTip;
    int positionsPerUnit;   ///< up-down positions of one unit: 10, specific gravity 1000
    const char *boxPicture; ///< shown when the focus leaves the box
    const char *rowPicture; ///< when a row is loaded
    double limit;           ///< the greatest value that passes
    const char *name;       ///< in the messages; null where it is the user's name
    const char *tooLarge;   ///< what follows the name in the too-large message
    int userField;          ///< 1 or 2 for the user's own, else 0
};

/// In the order of the entry window.
extern const std::array<Measurement, 13> measurements;

/// The measurement of that column of WATERLOG, whatever the case of its letters. The column must be one.
const Measurement &MeasurementOf(const QString &column);
