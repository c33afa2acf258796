// How the columns of a chart share its height. Values of very different size cannot be read off one axis: beside a
// redox value of 350, a nitrite value of 0.05 is a flat line, and so is a specific gravity of 1.022 to 1.026 on an axis
// that starts at zero. So the columns are divided into bands, one above the other, each with an axis of its own.
// - Bars and areas stand on zero. For curves and points whose values are all far from zero, that is, differ by no more
//   than half of the greatest, the axis shows only the part from the lowest to the highest value.
// - Columns share a band if each of them still fills a tenth of its axis.
// - There are at most three bands of bars or areas, and at most eight of curves. If more were needed, those that
// flatten
//   each other least share one.
#pragma once

#include <vector>

#include "platform/chart/ChartData.h"

struct ChartBand
{
    std::vector<int> columns; ///< in the order of the chart
    double low = 0;           ///< range of the axis
    double high = 1;
};

/// Makes the bands, from the greatest values to the smallest, as they are shown from top to bottom. There is always at
/// least one, and every column is in exactly one.
std::vector<ChartBand> MakeChartBands(const ChartData &data, ChartShape shape);
