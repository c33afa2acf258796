// The desktop's style with a few changes:
// - The arrow of a toolbar that is too narrow is a drawing of our own, because the style's is a small bitmap that looks
//   blurred on a screen of high resolution.
// - On a dark window, where Fusion draws in black, check boxes, radio buttons and child windows get a visible outline,
//   and the title bar of a child that is not in front is light on dark.
// - The text of a drop-down list that is too narrow ends with dots instead of being cut off in the middle of a letter.
// - The rows of all lists have the same height, and a row that has the focus but is not selected gets only a frame.
// - The buttons of message boxes have no icons, because the buttons of our windows have none.
#pragma once

#include <QPalette>
#include <QProxyStyle>

/// The contrast of two colours as the Web Content Accessibility Guidelines 2 define it, from 1 to 21. A part of a
/// picture that matters needs 3.
double Contrast(const QColor &one, const QColor &other);

/// The colour of an outline on a window with this palette: its contrast to window and base is at least 3.
QColor OutlineOn(const QPalette &palette);

/// The height of a row in lists.
int RowHeight(const QFontMetrics &metrics);

class Style : public QProxyStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption *option, const QWidget *widget) const override;
};
