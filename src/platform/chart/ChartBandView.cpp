#include "platform/chart/ChartBandView.h"

#include <algorithm>

#include <qcustomplot.h>

namespace {

constexpr double barsOfARow = 0.8; // share of a row's width that its bars take up together
constexpr double barAmongLines = 0.6;
constexpr double spot = 4; // pixels around a point

double sumOf(const ChartData &data, int column)
{
    double sum = 0;
    for (int row = 0; row < data.rows(); ++row)
        if (!data.isBlank(row, column))
            sum += data.value(row, column);
    return sum;
}

} // namespace

ChartBandView::Bar ChartBandView::bar(int column) const
{
    if (kind.shape == ChartShape::Combination)
        return {0, barAmongLines};
    const auto count = double(band.columns.size());
    const auto index = double(std::ranges::find(band.columns, column) - band.columns.begin());
    return {(index - (count - 1) / 2) * barsOfARow / count, barsOfARow / count};
}

QRectF ChartBandView::front(int row, int column) const
{
    const auto [offset, width] = bar(column);
    const double middle = row + 1 + offset;
    return QRectF(QPointF(keys->coordToPixel(middle - width / 2), values->coordToPixel(0)),
                  QPointF(keys->coordToPixel(middle + width / 2), values->coordToPixel(data->value(row, column))))
        .normalized();
}

QPointF ChartBandView::point(int row, int column) const
{
    return {keys->coordToPixel(row + 1), values->coordToPixel(data->value(row, column))};
}

ChartBandView::Slot ChartBandView::slot(int column) const
{
    if (kind.shape == ChartShape::Bar)
        return {0, 1};
    const std::vector<int> order = backToFront();
    const auto behind = double(order.end() - std::ranges::find(order, column));
    const auto count = double(order.size());
    return {(behind - 0.9) / count, (behind - 0.1) / count};
}

// Among areas, the small ones are in front; in a combination, the bars are behind the lines.
std::vector<int> ChartBandView::backToFront() const
{
    std::vector<int> order = band.columns;
    if (kind.shape == ChartShape::Area)
        std::ranges::stable_sort(order, std::greater(), [this](int column) { return sumOf(*data, column); });
    else if (kind.shape != ChartShape::Combination)
        std::ranges::reverse(order);
    return order;
}

QRectF ChartBandView::place(int row, int column) const
{
    if (DrawnAsBars(kind.shape, column)) {
        const QRectF bar = front(row, column);
        return kind.shape == ChartShape::Bar ? bar : bar.translated(*away * slot(column).front);
    }
    const auto [near, far] = slot(column);
    return QRectF(-spot, -spot, 2 * spot, 2 * spot)
        .translated(point(row, column) + *away * (kind.depth ? (near + far) / 2 : 0));
}

bool ChartBandView::has(int column) const { return std::ranges::find(band.columns, column) != band.columns.end(); }
