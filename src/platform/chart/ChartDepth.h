// Draws bars, lines, areas and steps as three-dimensional bodies in a box. The front of the box is the plane of the
// axes, and the depth goes up and to the right or left in a parallel projection, so that values can be read off the
// front. Everything is painted from the back to the front. There is one for each band; only the chart uses it.
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
    /// The lines of a column between its gaps, on the front plane.
    std::vector<QPolygonF> stretches(int column) const;

    ChartBandView m_view;
    ChartColours m_colours;
};
