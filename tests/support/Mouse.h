// Mouse events that enter through the window system, so that Qt moves the focus, recognises double clicks and opens
// pop-ups as it does for a keeper. A place is in the widget's coordinates; without one it is the middle of the widget.
// The window must be shown.
#pragma once

#include <optional>

#include <QTest>
#include <QWidget>
#include <QWindow>

namespace mouse {

inline QPoint inWindow(const QWidget *widget, std::optional<QPoint> place)
{
    return widget->mapTo(widget->window(), place.value_or(widget->rect().center()));
}

inline void press(QWidget *widget, std::optional<QPoint> place = {}, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(widget->window()->windowHandle(), button, {}, inWindow(widget, place));
}

inline void release(QWidget *widget, std::optional<QPoint> place = {}, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseRelease(widget->window()->windowHandle(), button, {}, inWindow(widget, place));
}

inline void click(QWidget *widget, std::optional<QPoint> place = {}, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(widget->window()->windowHandle(), button, {}, inWindow(widget, place));
}

inline void doubleClick(QWidget *widget, std::optional<QPoint> place = {}, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseDClick(widget->window()->windowHandle(), button, {}, inWindow(widget, place));
}

} // namespace mouse
