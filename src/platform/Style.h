// The desktop's style, but for four things. The arrows of bars that are too narrow are ours: the style's own are small
// bitmaps, which have every menu bar load the readers of all image formats before it is first painted. The lines below
// a tool bar are filled: Fusion draws them pixel by pixel, which starts threads in the first paint. Boxes to tick have
// an outline that is seen on a dark window; Fusion's is darker still. And a drop-down list too narrow for its text ends
// it with dots instead of in the middle of a letter.
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
