// What a chart shows: rows of labelled cells, each a number or blank, and the twelve ways to draw them. Plain values
// that the control fills and the painters read; a blank cell is a gap in whatever is drawn.
#pragma once

#include <vector>

#include <QString>
#include <QStringList>

enum class ChartShape { Bar, Line, Area, Step, Combination, Pie, Points };

/// A chart type by its number.
struct ChartKind
{
    int code;
    ChartShape shape;
    bool depth; ///< drawn as bodies that can be turned
};

/// The kind of that code; a code that no type has is drawn as 2D bars, the type that a new keeper has.
const ChartKind &ChartKindOf(int code);

struct ChartCell
{
    int row = -1; ///< from 0, as the column; -1 for none
    int column = -1;
    bool operator==(const ChartCell &) const = default;
    explicit operator bool() const { return row >= 0; }
};

class ChartData
{
public:
    /// Cells that come into being are blank.
    void resize(int rows, int columns);
    int rows() const { return int(rowLabels.size()); }
    int columns() const { return int(columnLabels.size()); }

    /// NaN where the cell is blank.
    double value(int row, int column) const { return m_values[at(row, column)]; }
    bool isBlank(int row, int column) const;
    /// As it was written, for a person to read.
    const QString &text(int row, int column) const { return m_texts[qsizetype(at(row, column))]; }
    /// A text that is no number leaves the cell blank, and so does a number beyond what an axis can show (1e200).
    void write(int row, int column, const QString &text);

    QStringList rowLabels;
    QStringList columnLabels;

private:
    std::size_t at(int row, int column) const
    {
        return std::size_t(row) * std::size_t(columns()) + std::size_t(column);
    }
    std::vector<double> m_values;
    QStringList m_texts;
};

/// Whether a column stands as bars: all do in a bar chart. Of a combination the first is bars and the others are lines
/// over it, so that the measurement named first is the one that the others are held against.
bool DrawnAsBars(ChartShape shape, int column);
