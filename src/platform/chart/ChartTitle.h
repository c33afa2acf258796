// The titles of a chart's value axes. Only the chart uses it.
#pragma once

#include <vector>

#include "platform/chart/ChartData.h"

class QFontMetricsF;

/// A column with its unit, such as "Nh3 (ppm)".
QString TitleOf(const ChartData &data, int column);

/// The title of an axis so many pixels long: the columns with their units, those of one unit together, such as
/// "ph; Nh3, No2 (ppm)", on two lines if one is too short. If two are too short as well, it is the units alone, as the
/// legend names the columns; without units, as much as fits. Nothing if that would not be much.
QString ValueAxisTitle(const ChartData &data, const std::vector<int> &columns, const QFontMetricsF &metrics,
                       double pixels);
