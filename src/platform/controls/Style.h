// The desktop's style with three changes. The arrow of a tool bar that is too narrow is a drawing of ours, because the
// style's own is a small bitmap that blurs on a fine screen. Check boxes and radio buttons get an outline that shows on
// a dark window, where Fusion's is darker still. A drop-down list that is too narrow for its text ends it with dots,
// not in the middle of a letter.
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
