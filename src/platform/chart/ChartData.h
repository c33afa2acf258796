// The data of a chart: rows of labelled cells, each a number or blank, and the twelve chart types. The control fills
// it, and the painting classes read it. A blank cell leaves a gap in the chart.
#pragma once

#include <vector>

#include <QString>
#include <QStringList>

enum class ChartShape { Bar, Line, Area, Step, Combination, Pie, Points };

/// A chart type.
struct ChartKind
{
    int code;
    ChartShape shape;
    bool depth; ///< drawn as three-dimensional bodies that can be turned
};

/// The chart type with that code; an unknown code gives 2D bars, the default type.
const ChartKind &ChartKindOf(int code);

struct ChartCell
{
    int row = -1; ///< from 0, like the column; -1 for no cell
    int column = -1;
    bool operator==(const ChartCell &) const = default;
    explicit operator bool() const { return row >= 0; }
};

class ChartData
{
public:
    /// New cells are blank.
    void resize(int rows, int columns);
    int rows() const { return int(rowLabels.size()); }
    int columns() const { return int(columnLabels.size()); }

    /// NaN where the cell is blank.
    double value(int row, int column) const { return m_values[at(row, column)]; }
    bool isBlank(int row, int column) const;
    /// The text as it was written, for display.
    const QString &text(int row, int column) const { return m_texts[qsizetype(at(row, column))]; }
    /// A text that is not a number makes the cell blank, as does a number that is too large for an axis (above 1e200).
    void write(int row, int column, const QString &text);

    QStringList rowLabels;
    QStringList columnLabels;
    QStringList columnUnits; ///< each may be empty
    QString rowsTitle;       ///< what the labels of the rows are, such as "Date"

private:
    std::size_t at(int row, int column) const
    {
        return std::size_t(row) * std::size_t(columns()) + std::size_t(column);
    }
    std::vector<double> m_values;
    QStringList m_texts;
};

/// Whether a column is drawn as bars. In a bar chart all columns are. In a combination only the first is, and the
/// others are lines over it, so that they can be compared with it.
bool DrawnAsBars(ChartShape shape, int column);
