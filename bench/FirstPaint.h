// An application object that reports time and memory when a window has been painted for the first time, and ends the
// process there. Both sides of the start's figure use it, so that "painted" means the same: the whole window, its
// children too.
#pragma once

#include <cstdlib>

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include "OwnProcess.h"

template <class Base> class FirstPaint : public Base
{
public:
    /// `since`: when the process was started, in nanoseconds of the monotonic clock.
    FirstPaint(int &argc, char **argv, std::int64_t since) : Base(argc, argv), m_since(since) {}

    /// The window that counts; until it is set nothing does.
    void watch(const QWidget *window) { m_window = window; }

    bool notify(QObject *receiver, QEvent *event) override
    {
        m_painted = m_painted || (event->type() == QEvent::Paint && isInWindow(receiver));
        const bool isNative = receiver->isWindowType();
        const bool result = Base::notify(receiver, event);
        // A window is painted from within an event of its native window: when that is over, so is the painting.
        if (m_painted && isNative) {
            reportMeasured(millisecondsSince(m_since), residentKilobytes());
            std::_Exit(0);
        }
        return result;
    }

private:
    // Any widget of it: a window that its children cover wholly is not painted itself.
    bool isInWindow(const QObject *receiver) const
    {
        return m_window && receiver->isWidgetType() && static_cast<const QWidget *>(receiver)->window() == m_window;
    }

    std::int64_t m_since;
    const QWidget *m_window = nullptr;
    bool m_painted = false;
};
