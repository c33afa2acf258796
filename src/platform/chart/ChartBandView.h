// Where the cells of a band stand on the plot, in pixels as the axes are now: the one place that knows, for what
// paints, for the tool tip and for the tests. Bars stand on the front; the other columns of a chart with depth lie one
// behind the other, each in a slot of the depth.
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
    QCPAxis *keys;       ///< row 0 stands at 1
    QCPAxis *values;     ///< of the band
    const QPointF *away; ///< from the front to the back, in pixels; 0 without depth

    struct Bar
    {
        double offset; ///< of its middle from the row's key
        double width;
    };
    /// Of a column that stands as bars, in rows.
    Bar bar(int column) const;
    /// The front of a bar; a flat one where the value is 0.
    QRectF front(int row, int column) const;
    /// Of a column's value, on the front.
    QPointF point(int row, int column) const;

    /// Between which parts of the depth a column lies: 0 front, 1 back.
    struct Slot
    {
        double front;
        double back;
    };
    Slot slot(int column) const;
    /// The columns from the last one to the first that hides others.
    std::vector<int> backToFront() const;

    /// What stands for a cell's value on the plot: its bar, or a spot around its point. The cell must not be blank.
    QRectF place(int row, int column) const;
    bool has(int column) const;
};
