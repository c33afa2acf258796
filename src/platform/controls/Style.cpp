#include "platform/controls/Style.h"

#include <QPainter>
#include <QStyleOption>

#include "platform/controls/Icons.h"

namespace {

/// Drawn over the outline of Fusion.
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

/// If there is too little room for the text, it ends with dots.
QStyleOptionComboBox fitted(QStyleOptionComboBox list, const QRect &room)
{
    const int icon = list.currentIcon.isNull() ? 0 : list.iconSize.width() + 4;
    list.currentText = list.fontMetrics.elidedText(list.currentText, Qt::ElideRight, room.width() - icon - 2);
    return list;
}

} // namespace

void Style::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                        const QWidget *widget) const
{
    const auto *list = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (list && element == CE_ComboBoxLabel) {
        const auto fitting = fitted(*list, subControlRect(CC_ComboBox, list, SC_ComboBoxEditField, widget));
        QProxyStyle::drawControl(element, &fitting, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

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
