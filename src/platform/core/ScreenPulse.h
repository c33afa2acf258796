// Lets the screen keep up with long work: a few times a second the work says how far it is, and the windows are
// repainted. Keys and clicks wait until the work is done, so that nothing can change or close what it works on.
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>

class ScreenPulse
{
public:
    ScreenPulse() { m_sinceShown.start(); }

    /// Calls `show` and repaints if the last time is long enough ago.
    template <class Show> void beat(const Show &show)
    {
        if (m_sinceShown.elapsed() < milliseconds)
            return;
        show();
        now();
    }
    /// Repaints, whenever the last time was.
    void now()
    {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        m_sinceShown.restart();
    }

private:
    static constexpr qint64 milliseconds = 60; ///< a repaint costs more than many reminders or rows
    QElapsedTimer m_sinceShown;
};
