// Bars, lines, areas and steps as bodies in a box, in the axes of a plot: the front is where the axes stand, and the
// depth goes to the right or left and up, in a parallel projection, so that a value can be read off the front. Drawn
// from the back to the front. One to a band; inside of the chart.
#pragma once

#include <qcustomplot.h>

#include "platform/chart/ChartBandView.h"
#include "platform/chart/ChartLook.h"

class ChartDepth : public QCPAbstractPlottable
{
public:
    ChartDepth(const ChartBandView &view, const ChartColours &colours);

    double selectTest(const QPointF &, bool, QVariant *) const override { return -1; }
    QCPRange getKeyRange(bool &found, QCP::SignDomain) const override;
    QCPRange getValueRange(bool &found, QCP::SignDomain, const QCPRange &) const override;

protected:
    void draw(QCPPainter *painter) override;
    void drawLegendIcon(QCPPainter *, const QRectF &) const override {}
    QRect clipRect() const override { return mParentPlot->viewport(); }

private:
    struct Paint;
    void drawBox(Paint &paint) const;
    void drawBars(Paint &paint, const std::vector<int> &columns) const;
    void drawSheets(Paint &paint, int column) const;
    /// The stretches of a column between its gaps, on the front.
    std::vector<QPolygonF> stretches(int column) const;

    ChartBandView m_view;
    ChartColours m_colours;
};
