#include "platform/controls/Style.h"

#include <algorithm>
#include <cmath>

#include <QListWidget>
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

bool isDark(const QPalette &palette) { return palette.window().color().lightness() < 128; }

/// The relative luminance of the guidelines, from 0 to 1.
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor &one, const QColor &other, double share)
{
    const auto part = [share](float a, float b) { return float(a + (b - a) * share); };
    return QColor::fromRgbF(part(one.redF(), other.redF()), part(one.greenF(), other.greenF()),
                            part(one.blueF(), other.blueF()));
}

QColor darkEnoughForWhite(QColor colour)
{
    while (Contrast(colour, Qt::white) < 4)
        colour = colour.darker(110);
    return colour;
}

/// If there is too little room for the text, it ends with dots.
QStyleOptionComboBox fitted(QStyleOptionComboBox list, const QRect &room)
{
    const int icon = list.currentIcon.isNull() ? 0 : list.iconSize.width() + 4;
    list.currentText = list.fontMetrics.elidedText(list.currentText, Qt::ElideRight, room.width() - icon - 2);
    return list;
}

} // namespace

double Contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor OutlineOn(const QPalette &palette)
{
    const QColor window = palette.window().color(), base = palette.base().color();
    const QColor extreme = isDark(palette) ? Qt::white : Qt::black;
    for (double share = 0.3; share < 1; share += 0.1)
        if (const QColor colour = mixed(window, extreme, share);
            Contrast(colour, window) >= 3 && Contrast(colour, base) >= 3)
            return colour;
    return extreme;
}

int RowHeight(const QFontMetrics &metrics) { return metrics.height() + metrics.height() / 3; }

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
    if (element == PE_FrameFocusRect && qobject_cast<const QListWidget *>(widget))
        return outline(*painter, option->rect, false, OutlineOn(option->palette)); // Fusion fills it, as a selected row
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool round = element == PE_IndicatorRadioButton;
    const bool drawn = round || element == PE_IndicatorCheckBox || element == PE_FrameWindow;
    if (drawn && isDark(option->palette) && baseStyle()->name() == u"fusion")
        outline(*painter, option->rect, round, OutlineOn(option->palette));
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                               const QWidget *widget) const
{
    const auto *title = qstyleoption_cast<const QStyleOptionTitleBar *>(option);
    const bool inFront = title && (title->titleBarState & State_Active);
    if (!title || (!inFront && !isDark(option->palette)))
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    // Fusion writes white on the highlight in the title of the child in front, and black in the others.
    QStyleOptionTitleBar seen = *title;
    seen.titleBarState |= State_Active;
    const QColor ground =
        inFront ? option->palette.highlight().color() : mixed(option->palette.window().color(), Qt::white, 0.15);
    seen.palette.setColor(QPalette::Highlight, darkEnoughForWhite(ground));
    QProxyStyle::drawComplexControl(control, &seen, painter, widget);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                              const QWidget *widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_ItemViewItem && qobject_cast<const QListWidget *>(widget))
        size.setHeight(std::max(size.height(), RowHeight(option->fontMetrics)));
    return size;
}

int Style::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *data) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
}

QIcon Style::standardIcon(StandardPixmap which, const QStyleOption *option, const QWidget *widget) const
{
    const bool more = which == SP_ToolBarHorizontalExtensionButton || which == SP_ToolBarVerticalExtensionButton;
    return more ? Icon("more") : QProxyStyle::standardIcon(which, option, widget);
}
