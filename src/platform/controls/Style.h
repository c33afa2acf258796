// The desktop's style with three changes. The arrow of a toolbar that is too narrow is a drawing of our own, because
// the style's is a small bitmap that looks blurred on a screen of high resolution. Check boxes and radio buttons get an
// outline that is visible on a dark window, on which Fusion's is even darker. The text of a drop-down list that is too
// narrow ends with dots instead of being cut off in the middle of a letter.
#pragma once

#include <QProxyStyle>

class Style : public QProxyStyle
{
public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption *option, const QWidget *widget) const override;
};
