#include "windows/advisers/StockingBar.h"

#include <QPainter>

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

void StockingBar::setPercent(double percent)
{
    m_percent = float(qBound(0.0, percent, double(end)));
    setUpdatesEnabled(false); // a progress bar repaints at once; this one waits for the next paint of its window
    setValue(int(m_percent));
    setUpdatesEnabled(true);
    setAccessibleName(QStringLiteral("The tank is %1% full").arg(value()));
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
    const QRect bar = rect().adjusted(0, 0, -1, -fontMetrics().height() - 3);
    const auto x = [&bar](double percent) { return bar.left() + qRound(bar.width() * percent / end); };
    const auto fill = [&](double from, double to, const QBrush &brush) {
        painter.fillRect(QRect(QPoint(x(from), bar.top()), QPoint(x(to), bar.bottom())), brush);
    };
    fill(0, end, palette().base());
    fill(0, qMin(m_percent, float(full)), QColor(0x3f, 0xa6, 0x6a));
    if (m_percent > full)
        fill(full, m_percent, QColor(0xe0, 0x52, 0x6a));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(bar);

    painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
    painter.drawLine(x(full), bar.top() + 1, x(full), bar.bottom() + 3);
    for (const int mark : marks) {
        const QString text = QStringLiteral("%1%").arg(mark);
        const int width = fontMetrics().horizontalAdvance(text);
        painter.drawText(qMax(0, x(mark) - width / 2), height() - fontMetrics().descent(), text);
    }
}
