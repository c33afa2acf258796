#include "platform/Style.h"

#include <QPainter>
#include <QStyleOption>

#include "platform/Icons.h"

namespace {

/// Where Fusion draws its own.
void outline(QPainter &painter, const QRect &place, bool round, const QColor &colour)
{
    painter.save();
    painter.setPen(colour);
    painter.setBrush(Qt::NoBrush);
    if (round) {
        painter.setRenderHint(QPainter::Antialiasing);
        const double radius = (place.width() | 1) / 2.0 - 1;
        painter.drawEllipse(QPointF(place.center() + QPoint(1, 1)), radius, radius);
    } else {
        painter.drawRect(place.adjusted(0, 0, -1, -1));
    }
    painter.restore();
}

} // namespace

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool round = element == PE_IndicatorRadioButton;
    const bool dark = option->palette.window().color().lightness() < 128;
    if (dark && (round || element == PE_IndicatorCheckBox) && baseStyle()->name() == u"fusion")
        outline(*painter, option->rect, round, option->palette.color(QPalette::PlaceholderText));
}

QIcon Style::standardIcon(StandardPixmap which, const QStyleOption *option, const QWidget *widget) const
{
    const bool more = which == SP_ToolBarHorizontalExtensionButton || which == SP_ToolBarVerticalExtensionButton;
    return more ? Icon("more") : QProxyStyle::standardIcon(which, option, widget);
}
