// The picture of a chart: axes, grid, bars, lines, steps and legend are QCustomPlot's own, the pie and the bodies with
// depth are plottables of ours in its axes. Made whole by build() from data that it keeps; what depends on the size
// (which rows are labelled, how the legend wraps, how deep the depth is) is fitted at each layout, on screen and on
// paper. Inside of the chart: the windows use Chart.h.
#pragma once

#include <memory>

#include <qcustomplot.h>

#include "platform/chart/ChartBandView.h"
#include "platform/chart/ChartCanvas.h"
#include "platform/chart/ChartData.h"
#include "platform/chart/ChartLook.h"

class ChartPie;
class ChartRowTicker;

class ChartPlot : public QCustomPlot, public ChartCanvas
{
public:
    explicit ChartPlot(QWidget *parent = nullptr);

    QWidget &widget() override { return *this; }
    void build(const ChartData &data, int chartType, const QString &title, const ChartColours &colours) override;
    void setTurn(const ChartTurn &turn) override { m_turn = turn; }
    const ChartTurn &turn() const override { return m_turn; }
    void redraw() override { replot(rpQueuedRefresh); }
    void redrawSoon() override { replot(rpQueuedReplot); }
    ChartCell cellAt(const QPointF &place) const override;
    QRectF place(int row, int column) const override;
    QImage image(const QSize &size, double scale) override
    {
        return toPixmap(size.width(), size.height(), scale).toImage();
    }
    void paintVectors(QPainter &painter, const QSizeF &size) override;

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
