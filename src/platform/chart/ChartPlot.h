// The picture of a chart: axes, grid, bars, lines, steps and legend are QCustomPlot's own, the pie and the bodies with
// depth are plottables of ours in its axes. Made whole by build() from data that it keeps; what depends on the size
// (which rows are labelled, how the legend wraps, how deep the depth is) is fitted at each layout, on screen and on
// paper. Inside of the chart: the windows use Chart.h.
#pragma once

#include <memory>

#include <qcustomplot.h>

#include "platform/chart/ChartBandView.h"
#include "platform/chart/ChartData.h"
#include "platform/chart/ChartLook.h"

class ChartPie;
class ChartRowTicker;

/// Where the depth goes: to the right (1) or to the left (-1), and up (0 to 1).
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
    /// Visible after the next replot(), too.
    void setTurn(const ChartTurn &turn) { m_turn = turn; }
    const ChartTurn &turn() const { return m_turn; }
    /// The cell whose value is drawn at a place of the widget, or within a few pixels of it.
    ChartCell cellAt(const QPointF &place) const;
    /// Where a cell's value is drawn; empty for a blank one.
    QRectF place(int row, int column) const;
    /// Paints the chart as vectors into a rectangle that starts at 0, 0.
    void paintVectors(QPainter &painter, const QSizeF &size);

private:
    void clear();
    void addTitle();
    void addPie();
    void addBand(const ChartBand &band, bool isLast);
    void dress(QCPAxisRect &rect);
    void addBars(const ChartBandView &view, int column);
    void addGraph(const ChartBandView &view, int column);
    void addLegend();

    void fit();
    bool fitTitle();
    bool fitLegend();
    double depth() const;
    bool fitDepth();
    bool fitLabels();

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
    std::unique_ptr<QCPLegend> m_hiddenLegend; ///< while there is no room for it
    QPointer<QCPLegend> m_legend;
    QPointer<ChartPie> m_pie;
    QPointF m_away;
    bool m_fitting = false;
};
