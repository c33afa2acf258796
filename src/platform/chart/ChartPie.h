// Draws a pie for each row, side by side with their labels below. A slice shows the share of a column's absolute value
// in its row. Each slice is at least five degrees wide, so that small ones can be seen beside a large one. Blank cells
// and zeros have no slice. Only the chart uses it.
#pragma once

#include <qcustomplot.h>

#include "platform/chart/ChartData.h"
#include "platform/chart/ChartLook.h"

class ChartPie : public QCPAbstractPlottable
{
public:
    ChartPie(QCPAxisRect &rect, const ChartData &data, const ChartColours &colours, const QFont &font);

    /// The cell of the slice at a place; no cell outside the pies.
    ChartCell cellAt(const QPointF &place) const;
    /// A small area in the middle of a slice; empty if the cell has no slice.
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

    /// How the pies are arranged: as many side by side as makes them largest.
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
