#include "platform/chart/ChartParts.h"

#include <cmath>

namespace {

constexpr double betweenLabels = 8;  // pixels
constexpr double labelHeights = 1.2; // height of a value's label with the gap to the next, in font heights
constexpr double mostTicks = 6;
constexpr int sampleWidth = 20;
constexpr int sampleGap = 5;
constexpr int widestEntry = 180; // pixels of the text of a legend entry
constexpr double markerSize = 7;
constexpr int overhang = 6;   // pixels of a marker beyond the end of an axis
constexpr double markGap = 3; // pixels between a value, its frame and the text beside it

} // namespace

bool ChartRowTicker::fit(double pixels, const QFont &font)
{
    const QFontMetricsF metrics(font);
    double widest = 0;
    for (const QString &label : m_labels)
        widest = std::max(widest, metrics.horizontalAdvance(label));
    const double row = pixels / double(std::max<qsizetype>(1, m_labels.size()));
    const int step = row > 0 ? std::max(1, int(std::ceil((widest + betweenLabels) / row))) : int(m_labels.size()) + 1;
    return std::exchange(m_step, step) != step;
}

QVector<double> ChartRowTicker::createTickVector(double, const QCPRange &range)
{
    QVector<double> ticks;
    for (int row = 0; row < m_labels.size(); row += m_step)
        if (range.contains(row + 1))
            ticks << row + 1;
    return ticks;
}

QVector<QString> ChartRowTicker::createLabelVector(const QVector<double> &ticks, const QLocale &, QChar, int)
{
    QVector<QString> labels;
    for (const double tick : ticks)
        labels << m_labels.at(qRound(tick) - 1);
    return labels;
}

bool ChartValueTicker::fit(double pixels, const QFont &font)
{
    const double most = std::clamp(pixels / (QFontMetricsF(font).height() * labelHeights), 1.0, mostTicks);
    return std::exchange(m_most, most) != most;
}

// One label makes no scale. Where only one multiple of the step is in the range, two that are off by half a step may
// be.
double ChartValueTicker::getTickStep(const QCPRange &range)
{
    const double step = roundStep(range.size() / m_most);
    const auto ticksFrom = [&range, step](double origin) {
        return std::floor((range.upper - origin) / step) - std::ceil((range.lower - origin) / step) + 1;
    };
    setTickOrigin(ticksFrom(0) < 2 && ticksFrom(step / 2) >= 2 ? step / 2 : 0);
    return step;
}

double ChartValueTicker::roundStep(double step)
{
    const double power = std::pow(10, std::floor(std::log10(step)));
    for (const double round : {1.0, 2.0, 2.5, 5.0})
        if (step <= round * power)
            return round * power;
    return 10 * power;
}

QRect ChartGraph::clipRect() const { return QCPGraph::clipRect().adjusted(-overhang, -overhang, overhang, overhang); }

QCPScatterStyle ChartMarkerOf(const ChartLook &look, double size)
{
    using Style = QCPScatterStyle;
    static constexpr Style::ScatterShape shapes[] = {
        Style::ssDisc,       Style::ssSquare,      Style::ssTriangle,   Style::ssDiamond, Style::ssTriangleInverted,
        Style::ssCross,      Style::ssPlus,        Style::ssCircle,     Style::ssStar,    Style::ssCrossSquare,
        Style::ssPlusSquare, Style::ssCrossCircle, Style::ssPlusCircle,
    };
    const bool filled = look.marker < 5;
    return Style(shapes[look.marker], QPen(look.colour, filled ? 1 : 1.5), filled ? QBrush(look.colour) : QBrush(),
                 filled ? size : size + 1);
}

ChartSample ChartSampleOf(const ChartKind &kind, int column, const ChartColours &colours)
{
    const bool line = kind.shape == ChartShape::Line || kind.shape == ChartShape::Step ||
                      (kind.shape == ChartShape::Combination && !DrawnAsBars(kind.shape, column));
    const bool body = kind.shape != ChartShape::Points && (kind.depth || !line);
    return {colours.look(column), body, line && !body, kind.shape == ChartShape::Points};
}

void ChartSample::draw(QCPPainter &painter, const QRectF &place) const
{
    painter.setAntialiasing(!body);
    if (body) {
        painter.setPen(look.rim());
        painter.setBrush(look.colour);
        painter.drawRect(place.adjusted(3, 1, -1, -1));
        return;
    }
    if (line) {
        painter.setPen(look.line());
        painter.drawLine(QPointF(place.left(), place.center().y()), QPointF(place.right(), place.center().y()));
    }
    const QCPScatterStyle style = ChartMarkerOf(look, markerSize);
    style.applyTo(&painter, look.line());
    style.drawShape(&painter, place.center());
}

void DrawChartMark(QPainter &painter, const QRectF &place, const QString &text, const ChartColours &colours,
                   const QRectF &area)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const QRectF frame = place.adjusted(-markGap, -markGap, markGap, markGap);
    for (const QPen &pen : {QPen(colours.paper, 4), QPen(colours.ink, 2)}) { // the rim makes it visible on any colour
        painter.setPen(pen);
        painter.drawRect(frame);
    }
    QRectF box = painter.fontMetrics().boundingRect(area.toRect(), Qt::AlignLeft, text);
    box.adjust(0, 0, 4 * markGap, 2 * markGap);
    box.moveCenter(frame.center());
    box.moveBottom(frame.top() - markGap);
    if (box.top() < area.top())
        box.moveTop(std::min(frame.bottom() + markGap, area.bottom() - box.height()));
    box.moveLeft(std::clamp(box.left(), area.left(), std::max(area.left(), area.right() - box.width())));
    painter.setPen(QPen(colours.ink, 1));
    painter.setBrush(colours.paper);
    painter.drawRect(box);
    painter.drawText(box, Qt::AlignCenter, text);
}

ChartLegendItem::ChartLegendItem(QCPLegend *legend, const ChartSample &sample, const QString &text) :
    QCPAbstractLegendItem(legend), m_sample(sample),
    m_text(QFontMetrics(legend->font()).elidedText(text, Qt::ElideRight, widestEntry))
{
    setFont(legend->font());
    setTextColor(legend->textColor());
}

void ChartLegendItem::draw(QCPPainter *painter)
{
    const QRectF place = rect();
    const double sample = std::min(12.0, place.height());
    m_sample.draw(*painter, QRectF(place.left(), place.center().y() - sample / 2, sampleWidth, sample));
    painter->setFont(font());
    painter->setPen(textColor());
    painter->drawText(place.adjusted(sampleWidth + sampleGap, 0, 1, 0), Qt::AlignVCenter | Qt::TextSingleLine, m_text);
}

QSize ChartLegendItem::minimumOuterSizeHint() const
{
    const QFontMetrics metrics(font());
    return {sampleWidth + sampleGap + metrics.horizontalAdvance(m_text) + 2, metrics.height() + 2};
}
