#include "platform/chart/ChartData.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "text/Numbers.h"

namespace {

constexpr double blank = std::numeric_limits<double>::quiet_NaN();
constexpr double greatest = 1e200;

// XY (16) draws points only, at their rows: the rows are dates, and no measurement gives the x values of another.
constexpr ChartKind kinds[] = {
    {0, ChartShape::Bar, true},          {1, ChartShape::Bar, false},  {2, ChartShape::Line, true},
    {3, ChartShape::Line, false},        {4, ChartShape::Area, true},  {5, ChartShape::Area, false},
    {6, ChartShape::Step, true},         {7, ChartShape::Step, false}, {8, ChartShape::Combination, true},
    {9, ChartShape::Combination, false}, {14, ChartShape::Pie, false}, {16, ChartShape::Points, false},
};
constexpr int usual = 1;

} // namespace

const ChartKind &ChartKindOf(int code)
{
    const auto *found = std::ranges::find(kinds, code, &ChartKind::code);
    return found != std::end(kinds) ? *found : kinds[usual];
}

void ChartData::resize(int rows, int columns)
{
    ChartData resized;
    resized.rowLabels = rowLabels.mid(0, rows);
    resized.rowLabels.resize(rows);
    resized.columnLabels = columnLabels.mid(0, columns);
    resized.columnLabels.resize(columns);
    resized.columnUnits = columnUnits.mid(0, columns);
    resized.columnUnits.resize(columns);
    resized.rowsTitle = rowsTitle;
    resized.m_values.assign(std::size_t(rows) * std::size_t(columns), blank);
    resized.m_texts.resize(qsizetype(rows) * columns);
    for (int row = 0; row < std::min(rows, this->rows()); ++row)
        for (int column = 0; column < std::min(columns, this->columns()); ++column) {
            resized.m_values[resized.at(row, column)] = value(row, column);
            resized.m_texts[qsizetype(resized.at(row, column))] = text(row, column);
        }
    *this = std::move(resized);
}

bool ChartData::isBlank(int row, int column) const { return std::isnan(value(row, column)); }

void ChartData::write(int row, int column, const QString &text)
{
    const double number = ReadNumber(text).value_or(blank);
    m_values[at(row, column)] = std::abs(number) <= greatest ? number : blank;
    m_texts[qsizetype(at(row, column))] = text;
}

bool DrawnAsBars(ChartShape shape, int column)
{
    return shape == ChartShape::Bar || (shape == ChartShape::Combination && column == 0);
}
