// How the columns of a chart share its height. Values of very different size cannot be read off one axis: beside a
// redox value of 350, a nitrite value of 0.05 is a flat line. So the columns are divided into at most three bands, one
// above the other, each with an axis of its own; columns of similar size share a band.
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
