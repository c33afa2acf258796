#include "advisers/StockingBar.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int full = 100;
constexpr int end = 125;
constexpr int marks[] = {0, 25, 50, 75, full};

} // namespace

StockingBar::StockingBar(QWidget *parent) : QProgressBar(parent)
{
    setRange(0, end);
    setFormat(QStringLiteral("%v%"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setPercent(0);
}

void StockingBar::setPercent(float percent)
{
    m_percent = qBound(0.0f, percent, float(end));
    setValue(int(m_percent));
    setAccessibleName(QStringLiteral("The tank is %1% full").arg(value()));
    update();
}

QSize StockingBar::minimumSizeHint() const
{
    const int line = fontMetrics().height();
    return {fontMetrics().averageCharWidth() * 40, line * 5 / 2};
}

QSize StockingBar::sizeHint() const { return minimumSizeHint(); }

void StockingBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int line = fontMetrics().height();
    const QRectF bar = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -line - 2.5);
    const auto x = [&bar](double percent) { return bar.left() + bar.width() * percent / end; };

    QPainterPath outline;
    outline.addRoundedRect(bar, 4, 4);
    painter.fillPath(outline, palette().base());
    painter.save();
    painter.setClipPath(outline);
    painter.fillRect(QRectF(QPointF(x(0), bar.top()), QPointF(x(qMin(m_percent, float(full))), bar.bottom())),
                     QColor(0x3f, 0xa6, 0x6a));
    if (m_percent > full)
        painter.fillRect(QRectF(QPointF(x(full), bar.top()), QPointF(x(m_percent), bar.bottom())),
                         QColor(0xe0, 0x52, 0x6a));
    painter.restore();
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawPath(outline);

    painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
    painter.drawLine(QPointF(x(full), bar.top()), QPointF(x(full), bar.bottom() + 3));
    for (const int mark : marks) {
        const QString text = QStringLiteral("%1%").arg(mark);
        const int width = fontMetrics().horizontalAdvance(text);
        const double left = qMax(0.0, x(mark) - width / 2.0);
        painter.drawText(QPointF(left, height() - fontMetrics().descent()), text);
    }
}
