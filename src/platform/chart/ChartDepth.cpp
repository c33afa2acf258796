#include "platform/chart/ChartDepth.h"

namespace {

constexpr int lighter = 125;
constexpr int darker = 130;
constexpr double islandWidth = 0.3; // width of a single value between two gaps, as a share of a row

QPolygonF sheet(const QPointF &from, const QPointF &to, const QPointF &front, const QPointF &back)
{
    return QPolygonF({from + front, to + front, to + back, from + back});
}

} // namespace

/// The painter and the direction of the depth during one drawing.
struct ChartDepth::Paint
{
    QCPPainter &painter;
    QPointF away;
    bool toTheRight;

    void face(const QPolygonF &polygon, const QColor &colour, const QPen &rim)
    {
        painter.setPen(rim);
        painter.setBrush(colour);
        painter.drawPolygon(polygon);
    }
    /// Draws the front, the top and the visible side of a box.
    void box(const QRectF &front, double near, double far, const QColor &colour, const QPen &rim)
    {
        const QPointF n = away * near, f = away * far;
        const QPointF edge[] = {toTheRight ? front.topRight() : front.topLeft(),
                                toTheRight ? front.bottomRight() : front.bottomLeft()};
        face(sheet(front.topLeft(), front.topRight(), n, f), colour.lighter(lighter), rim);
        face(sheet(edge[0], edge[1], n, f), colour.darker(darker), rim);
        face(front.translated(n), colour, rim);
    }
};

ChartDepth::ChartDepth(const ChartBandView &view, const ChartColours &colours) :
    QCPAbstractPlottable(view.keys, view.values), m_view(view), m_colours(colours)
{
}

QCPRange ChartDepth::getKeyRange(bool &found, QCP::SignDomain) const
{
    found = true;
    return m_view.keys->range();
}

QCPRange ChartDepth::getValueRange(bool &found, QCP::SignDomain, const QCPRange &) const
{
    found = true;
    return m_view.values->range();
}

void ChartDepth::draw(QCPPainter *painter)
{
    painter->setAntialiasing(true);
    Paint paint{*painter, *m_view.away, m_view.away->x() >= 0};
    drawBox(paint);
    if (m_view.kind.shape == ChartShape::Bar) {
        drawBars(paint, m_view.band.columns);
        return;
    }
    for (const int column : m_view.backToFront())
        if (DrawnAsBars(m_view.kind.shape, column))
            drawBars(paint, {column});
        else
            drawSheets(paint, column);
}

void ChartDepth::drawBox(Paint &paint) const
{
    const QRectF front = m_view.keys->axisRect()->rect();
    const QPointF away = paint.away;
    const double side = paint.toTheRight ? front.left() : front.right();
    const QPen rim(m_colours.grid, 1);
    const QColor wall = m_colours.isDark() ? m_colours.paper.lighter(115) : m_colours.paper.darker(103);
    paint.face(front.translated(away), wall, rim);
    paint.face(sheet({side, front.top()}, {side, front.bottom()}, {}, away), wall.darker(104), rim);
    paint.face(sheet(front.bottomLeft(), front.bottomRight(), {}, away), wall.darker(108), rim);
    for (const double tick : m_view.values->tickVector()) {
        const double y = m_view.values->coordToPixel(tick);
        if (y < front.top() || y > front.bottom())
            continue;
        const double other = paint.toTheRight ? front.right() : front.left();
        paint.painter.drawPolyline(QPolygonF({{side, y}, QPointF(side, y) + away, QPointF(other, y) + away}));
    }
}

// Draws in the direction of the depth, so that each bar hides the side of the one before.
void ChartDepth::drawBars(Paint &paint, const std::vector<int> &columns) const
{
    const int rows = m_view.data->rows();
    const auto count = int(columns.size());
    for (int i = 0; i < rows * count; ++i) {
        const int place = paint.toTheRight ? i : rows * count - 1 - i;
        const int row = place / count, column = columns[std::size_t(place % count)];
        if (m_view.data->isBlank(row, column))
            continue;
        const ChartLook look = m_colours.look(column);
        const auto [near, far] = m_view.slot(column);
        paint.box(m_view.front(row, column), near, far, look.colour, look.rim());
    }
}

std::vector<QPolygonF> ChartDepth::stretches(int column) const
{
    const ChartData &data = *m_view.data;
    const double half = (m_view.keys->coordToPixel(1) - m_view.keys->coordToPixel(0)) / 2;
    const bool steps = m_view.kind.shape == ChartShape::Step;
    std::vector<QPolygonF> all;
    bool open = false;
    for (int row = 0; row < data.rows(); ++row) {
        const bool blank = data.isBlank(row, column);
        if (!blank) {
            const QPointF point = m_view.point(row, column);
            if (!open)
                all.emplace_back();
            if (steps) // a step is as wide as its row
                all.back() << point - QPointF(half, 0) << point + QPointF(half, 0);
            else
                all.back() << point;
        }
        open = !blank;
    }
    for (QPolygonF &one : all)
        if (one.size() == 1)
            one =
                QPolygonF({one.front() - QPointF(half * islandWidth, 0), one.front() + QPointF(half * islandWidth, 0)});
    return all;
}

void ChartDepth::drawSheets(Paint &paint, int column) const
{
    const QColor colour = m_colours.look(column).colour;
    const QPen rim(colour.darker(darker), 1);
    const auto [near, far] = m_view.slot(column);
    const QPointF n = paint.away * near, f = paint.away * far;
    const bool area = m_view.kind.shape == ChartShape::Area;
    const double ground = m_view.values->coordToPixel(0);
    for (const QPolygonF &line : stretches(column)) {
        const auto last = int(line.size()) - 1;
        const QPointF &end = paint.toTheRight ? line.back() : line.front();
        if (area)
            paint.face(sheet(end, {end.x(), ground}, n, f), colour.darker(darker), rim);
        for (int i = 0; i < last; ++i) {
            const int part = paint.toTheRight ? i : last - 1 - i;
            const QPointF &from = line[part], &to = line[part + 1];
            const bool falls = (to.y() > from.y()) == paint.toTheRight && to.y() != from.y();
            paint.face(sheet(from, to, n, f), falls ? colour.darker(112) : colour.lighter(area ? lighter : 110), rim);
        }
        if (area) {
            QPolygonF front = line;
            front << QPointF(line.back().x(), ground) << QPointF(line.front().x(), ground);
            paint.face(front.translated(n), colour, rim);
        }
    }
}
