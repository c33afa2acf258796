// The picture of a chart as its control sees it: built whole from data, redrawn, asked where a value is. The control
// does not know what draws it, which is loaded with the first chart.
#pragma once

#include <QPointF>
#include <QRectF>

#include "platform/chart/ChartData.h"
#include "platform/chart/ChartLook.h"

class QImage;
class QPainter;
class QWidget;

/// Where the depth goes: to the right (1) or to the left (-1), and up (0 to 1).
struct ChartTurn
{
    double right = 0.7;
    double up = 0.55;
};

class ChartCanvas
{
public:
    virtual ~ChartCanvas() = default;
    virtual QWidget &widget() = 0;

    /// Takes the place of whatever was there. Shown when it is redrawn.
    virtual void build(const ChartData &data, int chartType, const QString &title, const ChartColours &colours) = 0;
    /// Shown when it is redrawn, too.
    virtual void setTurn(const ChartTurn &turn) = 0;
    virtual const ChartTurn &turn() const = 0;
    /// Now, so that places can be asked for; or once, when the event loop comes round.
    virtual void redraw() = 0;
    virtual void redrawSoon() = 0;

    /// The cell whose value is drawn at a place of the widget, or within a few pixels of it.
    virtual ChartCell cellAt(const QPointF &place) const = 0;
    /// Where a cell's value is drawn; empty for a blank one.
    virtual QRectF place(int row, int column) const = 0;

    virtual QImage image(const QSize &size, double scale) = 0;
    /// Paints it in a rectangle from 0, 0 on, as vectors.
    virtual void paintVectors(QPainter &painter, const QSizeF &size) = 0;
};
