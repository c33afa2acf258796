// How the columns of a chart share its height. Measurements of very different size cannot be read off one axis: beside
// a redox value of 350 a nitrite of 0.05 is a flat line. So the columns are sorted into at most three bands, one above
// the other, each with an axis of its own; columns of like size share one. Pure functions.
#pragma once

#include <vector>

#include "platform/chart/ChartData.h"

struct ChartBand
{
    std::vector<int> columns; ///< in the order of the chart
    double low = 0;           ///< of the axis
    double high = 1;
};

/// From the greatest values to the smallest, as they stand from top to bottom. There is always one; every column is in
/// one of them.
std::vector<ChartBand> MakeChartBands(const ChartData &data, ChartShape shape);
