#include "platform/chart/ChartPie.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double smallestSpan = 5; // degrees
constexpr double gap = 6;          // pixels around a pie
constexpr double smallestLabelled = 24;

} // namespace

ChartPie::ChartPie(QCPAxisRect &rect, const ChartData &data, const ChartColours &colours, const QFont &font) :
    QCPAbstractPlottable(rect.axis(QCPAxis::atBottom), rect.axis(QCPAxis::atLeft)), m_rect(rect), m_data(data),
    m_colours(colours), m_font(font), m_labelHeight(QFontMetricsF(font).height()), m_labelWidth(0)
{
    for (const QString &label : data.rowLabels)
        m_labelWidth = std::max(m_labelWidth, QFontMetricsF(font).horizontalAdvance(label));
}

std::vector<ChartPie::Slice> ChartPie::slices(int row) const
{
    double sum = 0;
    std::vector<Slice> all;
    for (int column = 0; column < m_data.columns(); ++column)
        if (!m_data.isBlank(row, column) && m_data.value(row, column) != 0) {
            all.push_back({column, 0, std::abs(m_data.value(row, column))});
            sum += all.back().span;
        }
    const double toShare = 360 - smallestSpan * double(all.size());
    double start = 0;
    for (Slice &slice : all) {
        slice.start = start;
        slice.span = smallestSpan + toShare * slice.span / sum;
        start += slice.span;
    }
    return all;
}

ChartPie::Grid ChartPie::grid() const
{
    const QSizeF size = m_rect.rect().size();
    Grid best{1, size, 0, false};
    for (int across = 1; across <= m_data.rows(); ++across) {
        const int down = (m_data.rows() + across - 1) / across;
        const QSizeF cell(size.width() / across, size.height() / down);
        const double labelled = std::min(cell.width(), cell.height() - m_labelHeight) - gap;
        const bool fits = labelled >= smallestLabelled && m_labelWidth + gap <= cell.width();
        const double diameter = fits ? labelled : std::min(cell.width(), cell.height()) - gap;
        if (diameter > best.diameter)
            best = {across, cell, diameter, fits};
    }
    return best;
}

QPointF ChartPie::middle(const Grid &grid, int row) const
{
    const QPointF cell(row % grid.across * grid.cell.width(), row / grid.across * grid.cell.height());
    const double height = grid.cell.height() - (grid.labelled ? m_labelHeight : 0);
    return QPointF(m_rect.rect().topLeft()) + cell + QPointF(grid.cell.width() / 2, height / 2);
}

void ChartPie::draw(QCPPainter *painter)
{
    const Grid pies = grid();
    painter->setFont(m_font);
    for (int row = 0; row < m_data.rows(); ++row) {
        const QPointF centre = middle(pies, row);
        const double radius = pies.diameter / 2;
        const QRectF circle(centre.x() - radius, centre.y() - radius, pies.diameter, pies.diameter);
        const std::vector<Slice> all = slices(row);
        painter->setAntialiasing(true);
        painter->setPen(QPen(all.empty() ? m_colours.grid : m_colours.paper, 1));
        for (const Slice &slice : all) {
            painter->setBrush(m_colours.look(slice.column).colour);
            if (all.size() == 1)
                painter->drawEllipse(circle);
            else
                painter->drawPie(circle, qRound((90 - slice.start) * 16), -qRound(slice.span * 16));
        }
        if (all.empty()) {
            painter->setBrush(Qt::NoBrush);
            painter->drawEllipse(circle); // a row without values is an empty circle
        }
        if (pies.labelled) {
            painter->setPen(m_colours.ink);
            painter->drawText(QRectF(centre.x() - pies.cell.width() / 2, centre.y() + radius, pies.cell.width(),
                                     m_labelHeight + gap / 2),
                              Qt::AlignHCenter | Qt::AlignBottom | Qt::TextSingleLine, m_data.rowLabels.at(row));
        }
    }
}

ChartCell ChartPie::cellAt(const QPointF &place) const
{
    const Grid pies = grid();
    for (int row = 0; row < m_data.rows(); ++row) {
        const QPointF off = place - middle(pies, row);
        if (std::hypot(off.x(), off.y()) > pies.diameter / 2)
            continue;
        const double angle = std::atan2(off.x(), -off.y()) * 180 / std::numbers::pi;
        for (const Slice &slice : slices(row))
            if (const double clockwise = angle < 0 ? angle + 360 : angle;
                clockwise >= slice.start && clockwise < slice.start + slice.span)
                return {row, slice.column};
    }
    return {};
}

QRectF ChartPie::place(int row, int column) const
{
    const Grid pies = grid();
    for (const Slice &slice : slices(row))
        if (slice.column == column) {
            const double angle = (slice.start + slice.span / 2) * std::numbers::pi / 180;
            const QPointF point = middle(pies, row) + QPointF(std::sin(angle), -std::cos(angle)) * pies.diameter * 0.35;
            return QRectF(-2, -2, 4, 4).translated(point);
        }
    return {};
}
