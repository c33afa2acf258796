// The colours of a chart. The columns' own are chosen so that nobody has to see red or green to tell them apart, and
// so that they differ in lightness on paper without colour: seven hues, and after them the same seven once more in a
// second dress (pale bodies with a rim, thin lines), with a marker of its own for each of fourteen. Used by what
// paints.
#pragma once

#include <QBrush>
#include <QColor>
#include <QPen>

class QPalette;

struct ChartColours
{
    QColor paper;
    QColor ink;  ///< of axes and letters
    QColor grid; ///< of what is to be seen only if looked for

    static ChartColours onScreen(const QPalette &palette);
    static ChartColours onPaper();
};

struct ChartLook
{
    QColor colour;
    bool second; ///< in the second dress
    int marker;  ///< 0 to 13

    QBrush body(const QColor &paper) const;
    QPen rim() const;
    QPen line() const;
};

ChartLook ChartLookOf(int column);
