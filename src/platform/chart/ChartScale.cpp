#include "platform/chart/ChartScale.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t mostBandsOnZero = 3;
constexpr std::size_t mostBandsOfCurves = 8;
constexpr double readable = 10;   // times as high as a column an axis may be
constexpr double farShare = 0.5;  // of the greatest value; values that differ by no more than that are far from zero
constexpr double evenShare = 0.1; // of its value that an axis shows around a curve that is level
constexpr double room = 0.08;     // at the ends of an axis

/// Columns that share an axis, and the part of the axis that they need. Without a value, low is above high.
struct Group
{
    std::vector<int> columns;
    double low = INFINITY;
    double high = -INFINITY;
    double least = INFINITY; ///< the part that the lowest column needs; columns that are all 0 do not count

    double size() const { return low > high ? 0 : std::max(std::abs(low), std::abs(high)); }
};

Group groupOf(const ChartData &data, int column, bool onZero)
{
    Group group{{column}};
    for (int row = 0; row < data.rows(); ++row)
        if (!data.isBlank(row, column)) {
            group.low = std::min(group.low, data.value(row, column));
            group.high = std::max(group.high, data.value(row, column));
        }
    const double size = group.size(), height = group.high - group.low;
    if (size == 0)
        return group;
    if (onZero || height > size * farShare) {
        group.low = std::min(group.low, 0.0);
        group.high = std::max(group.high, 0.0);
    } else if (height < size * 1e-9) { // level, apart from rounding
        group.low -= size * evenShare / 2;
        group.high += size * evenShare / 2;
    }
    group.least = group.high - group.low;
    return group;
}

Group joined(const Group &one, const Group &other)
{
    Group both{one.columns, std::min(one.low, other.low), std::max(one.high, other.high),
               std::min(one.least, other.least)};
    both.columns.insert(both.columns.end(), other.columns.begin(), other.columns.end());
    return both;
}

/// How many times as high as its lowest column a common axis would be.
double flattening(const Group &one, const Group &other)
{
    const Group both = joined(one, other);
    return both.low < both.high ? (both.high - both.low) / both.least : 0;
}

/// Joins the two groups that flatten each other least. Returns false if that is not readable and there may be more
/// groups.
bool joinTwo(std::vector<Group> &groups, std::size_t most)
{
    auto one = groups.begin(), other = one + 1;
    double least = INFINITY;
    for (auto a = groups.begin(); a != groups.end(); ++a)
        for (auto b = a + 1; b != groups.end(); ++b)
            if (const double here = flattening(*a, *b); here < least) {
                least = here;
                one = a;
                other = b;
            }
    if (least > readable && groups.size() <= most)
        return false;
    *one = joined(*one, *other);
    groups.erase(other);
    return true;
}

ChartBand bandOf(Group group)
{
    std::ranges::sort(group.columns);
    if (group.size() == 0)
        return {group.columns};
    const double space = (group.high - group.low) * room;
    return {group.columns, group.low == 0 ? 0 : group.low - space, group.high == 0 ? 0 : group.high + space};
}

} // namespace

std::vector<ChartBand> MakeChartBands(const ChartData &data, ChartShape shape)
{
    if (data.columns() == 0)
        return {ChartBand()};
    std::vector<Group> groups;
    for (int column = 0; column < data.columns(); ++column)
        groups.push_back(groupOf(data, column, shape == ChartShape::Area || DrawnAsBars(shape, column)));
    std::ranges::stable_sort(groups, {}, &Group::size);
    const bool onZero = shape == ChartShape::Area || shape == ChartShape::Bar;
    while (groups.size() > 1 && joinTwo(groups, onZero ? mostBandsOnZero : mostBandsOfCurves)) {
    }
    std::ranges::stable_sort(groups, std::greater(), &Group::size);
    std::vector<ChartBand> bands;
    for (const Group &group : groups)
        bands.push_back(bandOf(group));
    return bands;
}
