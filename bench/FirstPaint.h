// An application object that reports time and memory when a window has been painted for the first time, and then ends
// the process. Both sides of the start's figure use it, so that "painted" means the same for both: the whole window
// with its children.
#pragma once

#include <cstdlib>

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include "OwnProcess.h"

template <class Base> class FirstPaint : public Base
{
public:
    /// `since` is when the process was started, in nanoseconds of the monotonic clock.
    FirstPaint(int &argc, char **argv, std::int64_t since) : Base(argc, argv), m_since(since) {}

    /// Sets the window to watch; before that, no painting counts.
    void watch(const QWidget *window) { m_window = window; }

    bool notify(QObject *receiver, QEvent *event) override
    {
        m_painted = m_painted || (event->type() == QEvent::Paint && isInWindow(receiver));
        const bool isNative = receiver->isWindowType();
        const bool result = Base::notify(receiver, event);
        // A window is painted within an event of its native window; when that event is over, so is the painting.
        if (m_painted && isNative) {
            reportMeasured(millisecondsSince(m_since), residentKilobytes());
            std::_Exit(0);
        }
        return result;
    }

private:
    // Any widget of the window counts, because a window that is covered by its children is not painted itself.
    bool isInWindow(const QObject *receiver) const
    {
        return m_window && receiver->isWidgetType() && static_cast<const QWidget *>(receiver)->window() == m_window;
    }

    std::int64_t m_since;
    const QWidget *m_window = nullptr;
    bool m_painted = false;
};
