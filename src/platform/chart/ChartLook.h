// The colours of a chart: thirteen for light grounds and for paper, thirteen for dark grounds. On its ground each has a
// contrast of at least 3:1, and colour-blind readers, too, can tell any two apart. A column also has a marker of its
// own.
#pragma once

#include <QColor>
#include <QPen>

class QPalette;

struct ChartLook
{
    QColor colour;
    int marker; ///< 0 to 12
    bool thin;  ///< as a line; those of the later columns are

    QPen rim() const;
    QPen line() const;
};

struct ChartColours
{
    QColor paper;
    QColor ink;  ///< for axes and text
    QColor grid; ///< for grid lines, which should not stand out

    static ChartColours onScreen(const QPalette &palette);
    static ChartColours onPaper();

    bool isDark() const { return paper.lightness() < 128; }
    /// After thirteen columns the looks begin again.
    ChartLook look(int column) const;
};
