#include "platform/desktop/ScreenPage.h"

#include "platform/desktop/PaintedPages.h"

ScreenPage::ScreenPage(QPainter &painter, int dotsAnInch) :
    m_painter(painter), m_dots(dotsAnInch), m_letters(double(dotsAnInch) / painter.device()->logicalDpiY()),
    m_seen(painter.clipBoundingRect())
{
}

void ScreenPage::text(double x, double y, const PageFont &font, const QString &text)
{
    if (font != m_font) {
        m_font = font;
        PageFont larger = font;
        larger.size *= m_letters;
        m_painter.setFont(FontOf(larger));
        const QFontMetricsF metrics(m_painter.font(), m_painter.device());
        m_ascent = metrics.ascent();
        m_height = metrics.lineSpacing();
    }
    if (y < m_seen.bottom() && y + m_height > m_seen.top())
        m_painter.drawText(QPointF(x, y + m_ascent), text);
}

void ScreenPage::line(double x1, double y1, double x2, double y2)
{
    m_painter.save();
    m_painter.setPen(LinePen(m_dots));
    m_painter.drawLine(QPointF(x1, y1), QPointF(x2, y2));
    m_painter.restore();
}

void ScreenPage::picture(double x, double y, const QSizeF &size, const PagePicture &paint)
{
    m_painter.save();
    m_painter.translate(x, y);
    paint(m_painter, size);
    m_painter.restore();
}
