// Mouse events that enter through the window system, so that Qt moves the focus, recognises double clicks and opens
// pop-ups as it does for a keeper. A place is in the widget's coordinates; without one it is the middle of the widget.
// The window must be shown.
#pragma once

#include <optional>

#include <QTest>
#include <QWidget>
#include <QWindow>

namespace mouse {

using Place = std::optional<QPoint>;

inline void send(QTest::MouseAction action, QWidget *widget, Place place, Qt::MouseButton button)
{
    const QPoint inWindow = widget->mapTo(widget->window(), place.value_or(widget->rect().center()));
    QTest::mouseEvent(action, widget->window()->windowHandle(), button, {}, inWindow);
}

inline void press(QWidget *widget, Place place = {}) { send(QTest::MousePress, widget, place, Qt::LeftButton); }

inline void release(QWidget *widget, Place place = {}) { send(QTest::MouseRelease, widget, place, Qt::LeftButton); }

inline void click(QWidget *widget, Place place = {}, Qt::MouseButton button = Qt::LeftButton)
{
    send(QTest::MouseClick, widget, place, button);
}

inline void doubleClick(QWidget *widget, Place place = {}) { send(QTest::MouseDClick, widget, place, Qt::LeftButton); }

} // namespace mouse
