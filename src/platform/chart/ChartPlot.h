// The picture of a chart. Axes, grid, bars, lines, steps and legend are QCustomPlot's own; pies and three-dimensional
// bodies are plottables of ours. build() makes the whole picture from data that it copies; what depends on the size
// (which rows are labelled, how the legend wraps, how deep the bodies are) is fitted at each layout, on screen and on
// paper. Only the chart uses it; windows use Chart.h.
#pragma once

#include <memory>

#include <qcustomplot.h>

#include "platform/chart/ChartBandView.h"
#include "platform/chart/ChartData.h"
#include "platform/chart/ChartLook.h"

class ChartPie;
class ChartRowTicker;

/// The direction of the depth: from left (-1) to right (1), and up (0 to 1).
struct ChartTurn
{
    double right = 0.7;
    double up = 0.55;
};

class ChartPlot : public QCustomPlot
{
public:
    explicit ChartPlot(QWidget *parent = nullptr);

    /// Replaces whatever was drawn before. The change is visible after the next replot().
    void build(const ChartData &data, int chartType, const QString &title, const ChartColours &colours);
    /// This change, too, is visible after the next replot().
    void setTurn(const ChartTurn &turn) { m_turn = turn; }
    const ChartTurn &turn() const { return m_turn; }
    /// The cell whose value is drawn at a place of the widget, or within a few pixels of it.
    ChartCell cellAt(const QPointF &place) const;
    /// Where a cell's value is drawn; empty if the cell is blank.
    QRectF place(int row, int column) const;
    /// Frames a cell's value and writes a text beside it, on the screen only. An empty cell removes the frame.
    void setMark(const ChartCell &cell, const QString &text);
    /// Paints the chart as vectors into a rectangle that starts at 0, 0.
    void paintVectors(QPainter &painter, const QSizeF &size);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    static constexpr int edge = 8; ///< pixels between the chart and its rim
    static constexpr int gap = 4;  ///< pixels above and below a band

    void clear();
    void addTitle();
    void addPie();
    void addBand(const ChartBand &band, bool isLast);
    void dress(QCPAxisRect &rect);
    void addBars(const ChartBandView &view, int column);
    void addGraph(const ChartBandView &view, int column);
    void addLegend();

    void fit();
    // Each of these tells whether it changed anything.
    bool fitTitle();
    bool fitLegend();
    double depth() const;
    bool fitDepth();
    bool fitHeights();
    bool fitLabels();
    bool fitAxisTitles();

    ChartData m_data;
    ChartKind m_kind;
    ChartColours m_colours;
    ChartTurn m_turn;
    QFont m_font;
    QString m_titleText;
    QPointer<QCPTextElement> m_title;
    QCPMarginGroup *m_margins;
    QSharedPointer<ChartRowTicker> m_rows;
    std::vector<ChartBandView> m_bands;
    std::unique_ptr<QCPLegend> m_hiddenLegend; ///< the legend, while there is no room for it
    QPointer<QCPLegend> m_legend;
    QPointer<ChartPie> m_pie;
    QPointF m_away;
    bool m_fitting = false;
    ChartCell m_marked;
    QString m_markText;
};
