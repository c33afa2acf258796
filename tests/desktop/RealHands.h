// The keeper's hands from outside: xdotool moves the pointer and presses buttons and keys of the X server. The server,
// the window manager and Qt decide which window gets them. Events that a test sends directly to a control take another
// way and do not show faults in that. No function here waits for a fixed time: each wait is for something to happen,
// and fails if it does not.
#pragma once

#include <functional>
#include <optional>

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

namespace real {

inline bool happens(const std::function<bool()> &what) { return QTest::qWaitFor(what, 20000); }

inline void xdotool(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    EXPECT_TRUE(happens([&process] { return process.state() == QProcess::NotRunning; }) && process.exitCode() == 0)
        << arguments.join(u' ').toStdString() << process.readAllStandardError().toStdString();
}

/// `place` is in the coordinates of the widget, by default its middle. A window that has just opened may still be
/// moving.
inline void click(const QWidget &widget, std::optional<QPoint> place = {})
{
    const auto pointerIsThere = [&] {
        const QPoint target = widget.mapToGlobal(place.value_or(widget.rect().center()));
        if (QCursor::pos() != target)
            xdotool({"mousemove", QString::number(target.x()), QString::number(target.y())});
        return QCursor::pos() == widget.mapToGlobal(place.value_or(widget.rect().center()));
    };
    EXPECT_TRUE(happens(pointerIsThere)) << widget.objectName().toStdString();
    xdotool({"click", "1"});
}

/// "Return", "ctrl+n", "alt+o".
inline void press(const QString &key) { xdotool({"key", key}); }

inline void write(const QString &text) { xdotool({"type", "--delay", "1", text}); }

/// Says what the keeper does once another window of that type is in front and accepts keys. It must be called before
/// the key or click that opens the window.
template <class T> void inNext(std::function<void(T &)> action)
{
    auto *watch = new QTimer(qApp);
    const QPointer<QWidget> before = QApplication::activeModalWidget();
    QObject::connect(watch, &QTimer::timeout, watch, [watch, before, action = std::move(action)] {
        const QPointer<T> window = qobject_cast<T *>(QApplication::activeModalWidget());
        if (!window || window == before || !window->isActiveWindow())
            return;
        watch->stop();
        watch->deleteLater();
        action(*window);
        if (!happens([&window] { return !window || !window->isVisible(); })) {
            ADD_FAILURE() << window->windowTitle().toStdString() << " is still open.";
            window->close();
        }
    });
    watch->start(5);
}

} // namespace real
