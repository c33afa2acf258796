// Computes where the cells of a band are on the plot, in pixels for the present axes. Painting, tool tips and tests all
// use it. In a chart with depth, bars stand at the front; other columns lie one behind the other, each in its own slot
// of the depth.
#pragma once

#include <QPointF>
#include <QRectF>

#include "platform/chart/ChartData.h"
#include "platform/chart/ChartScale.h"

class QCPAxis;

struct ChartBandView
{
    const ChartData *data;
    ChartBand band;
    ChartKind kind;
    QCPAxis *keys;       ///< the horizontal axis; row 0 is at 1
    QCPAxis *values;     ///< the vertical axis of the band
    const QPointF *away; ///< the vector from the front to the back, in pixels; 0 without depth

    struct Bar
    {
        double offset; ///< from the row's key to the middle of the bar
        double width;
    };
    /// Offset and width of a column's bars, in widths of a row. The column must be drawn as bars.
    Bar bar(int column) const;
    /// The front face of a bar; it has no height if the value is 0.
    QRectF front(int row, int column) const;
    /// The point of a cell's value, on the front plane.
    QPointF point(int row, int column) const;

    /// The part of the depth that a column takes up: 0 is the front, 1 the back.
    struct Slot
    {
        double front;
        double back;
    };
    Slot slot(int column) const;
    /// The columns in the order of painting, so that those in front hide those behind.
    std::vector<int> backToFront() const;

    /// The area that shows a cell's value: its bar, or a small square around its point. The cell must not be blank.
    QRectF place(int row, int column) const;
    bool has(int column) const;
};
