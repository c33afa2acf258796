// A pie for each row, side by side with their labels below, in the rectangle of a plot's axes. A slice is the share of
// a column's value in its row, by its distance from 0; the smallest are drawn a little wider than they are, so that
// they can be seen beside a great one. Blank cells and zeroes have no slice. Inside of the chart.
#pragma once

#include <qcustomplot.h>

#include "platform/chart/ChartData.h"
#include "platform/chart/ChartLook.h"

class ChartPie : public QCPAbstractPlottable
{
public:
    ChartPie(QCPAxisRect &rect, const ChartData &data, const ChartColours &colours, const QFont &font);

    /// The slice at a place, none beside the pies.
    ChartCell cellAt(const QPointF &place) const;
    /// The middle of a slice; empty where the cell has none.
    QRectF place(int row, int column) const;

    double selectTest(const QPointF &, bool, QVariant *) const override { return -1; }
    QCPRange getKeyRange(bool &found, QCP::SignDomain) const override { return found = false, QCPRange(); }
    QCPRange getValueRange(bool &found, QCP::SignDomain, const QCPRange &) const override
    {
        return found = false, QCPRange();
    }

protected:
    void draw(QCPPainter *painter) override;
    void drawLegendIcon(QCPPainter *, const QRectF &) const override {}

private:
    struct Slice
    {
        int column;
        double start; ///< degrees clockwise from the top
        double span;
    };
    std::vector<Slice> slices(int row) const;

    /// How the pies stand: so many side by side that they are largest.
    struct Grid
    {
        int across;
        QSizeF cell;
        double diameter;
        bool labelled;
    };
    Grid grid() const;
    QPointF middle(const Grid &grid, int row) const;

    QCPAxisRect &m_rect;
    const ChartData &m_data;
    ChartColours m_colours;
    QFont m_font;
    double m_labelHeight;
    double m_labelWidth;
};
