// The colours of a chart. Those of the columns can be told apart by colour-blind readers, and by their lightness on
// black-and-white paper. There are seven hues; the next seven columns repeat them in a second style (pale bodies with a
// rim, thin lines). Each of these fourteen columns has a marker of its own.
#pragma once

#include <QBrush>
#include <QColor>
#include <QPen>

class QPalette;

struct ChartColours
{
    QColor paper;
    QColor ink;  ///< for axes and text
    QColor grid; ///< for grid lines, which should not stand out

    static ChartColours onScreen(const QPalette &palette);
    static ChartColours onPaper();
};

struct ChartLook
{
    QColor colour;
    bool second; ///< in the second style
    int marker;  ///< 0 to 13

    QBrush body(const QColor &paper) const;
    QPen rim() const;
    QPen line() const;
};

ChartLook ChartLookOf(int column);
