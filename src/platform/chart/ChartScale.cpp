#include "platform/chart/ChartScale.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t mostBands = 3;
constexpr double readable = 10; // a column at least a tenth as high as its neighbour can still be read

struct Sized
{
    int column;
    double size; ///< largest absolute value; 0 for a column without values
};
using Group = std::vector<Sized>; // sorted by size

double sizeOf(const ChartData &data, int column)
{
    double size = 0;
    for (int row = 0; row < data.rows(); ++row)
        if (!data.isBlank(row, column))
            size = std::max(size, std::abs(data.value(row, column)));
    return size;
}

/// The ratio of the largest to the smallest column of a group. A column that is all 0 fits beside anything and does not
/// count.
double spread(const Group &group)
{
    const auto first = std::ranges::find_if(group, [](const Sized &one) { return one.size > 0; });
    return first == group.end() ? 1 : group.back().size / first->size;
}

/// Splits a group at the largest ratio between two neighbours and returns the upper part.
Group cutOff(Group &group)
{
    std::size_t cut = 1;
    double widest = 0;
    for (std::size_t i = 1; i < group.size(); ++i)
        if (group[i - 1].size > 0 && group[i].size / group[i - 1].size > widest) {
            widest = group[i].size / group[i - 1].size;
            cut = i;
        }
    Group upper(group.begin() + std::ptrdiff_t(cut), group.end());
    group.resize(cut);
    return upper;
}

/// Sets the range of a band's axis. Bars and areas start at 0; for lines, 0 is left out if it would only leave a gap
/// below them.
void setRange(ChartBand &band, const ChartData &data, ChartShape shape)
{
    double low = INFINITY, high = -INFINITY;
    for (const int column : band.columns)
        for (int row = 0; row < data.rows(); ++row)
            if (!data.isBlank(row, column)) {
                low = std::min(low, data.value(row, column));
                high = std::max(high, data.value(row, column));
            }
    if (low > high)
        return; // no value at all
    const bool standsOnZero = shape == ChartShape::Area || std::ranges::any_of(band.columns, [shape](int column) {
                                  return DrawnAsBars(shape, column);
                              });
    const bool nearZero = high - low > std::max(std::abs(low), std::abs(high)) / 2;
    if (standsOnZero || nearZero) {
        low = std::min(low, 0.0);
        high = std::max(high, 0.0);
    }
    const double size = std::max(std::abs(low), std::abs(high));
    // Leaves room for the markers, which are higher than their points.
    const double room = high - low > size * 1e-9 ? (high - low) * (standsOnZero ? 0.06 : 0.1)
                        : size > 0               ? size * 0.1
                                                 : 1;
    band.low = low == 0 ? 0 : low - room;
    band.high = high == 0 ? 0 : high + room;
    if (band.low == band.high)
        band.high = 1;
}

} // namespace

std::vector<ChartBand> MakeChartBands(const ChartData &data, ChartShape shape)
{
    Group all;
    for (int column = 0; column < data.columns(); ++column)
        all.push_back({column, sizeOf(data, column)});
    std::ranges::stable_sort(all, {}, &Sized::size);
    std::vector<Group> groups{all};
    while (!all.empty() && groups.size() < mostBands) {
        const auto widest = std::ranges::max_element(groups, {}, spread);
        if (spread(*widest) <= readable)
            break;
        Group upper = cutOff(*widest);
        groups.insert(widest + 1, std::move(upper));
    }
    std::vector<ChartBand> bands;
    for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
        ChartBand &band = bands.emplace_back();
        for (const Sized &one : *group)
            band.columns.push_back(one.column);
        std::ranges::sort(band.columns);
        setRange(band, data, shape);
    }
    return bands;
}
