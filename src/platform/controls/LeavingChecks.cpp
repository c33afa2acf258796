#include "platform/controls/LeavingChecks.h"

#include <utility>

#include <QApplication>
#include <QEvent>
#include <QScopeGuard>

#include "platform/controls/FocusAtFault.h"

LeavingChecks::LeavingChecks(QWidget *window) : QObject(window), m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *from, QWidget *to) { makeUpFor(from, to); });
}

void LeavingChecks::watch(QWidget *box, Check check)
{
    m_checks.emplace(box, std::move(check));
    box->installEventFilter(this);
}

void LeavingChecks::suspect(QWidget *box)
{
    if (!m_suspects.contains(box))
        m_suspects << box;
}

bool LeavingChecks::passes()
{
    if (m_swallow || m_running || !runPending())
        return false;
    while (!m_suspects.isEmpty()) {
        m_pending = m_suspects.constFirst();
        if (!runPending())
            return false;
        m_suspects.removeFirst();
    }
    return true;
}

bool LeavingChecks::eventFilter(QObject *object, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        if (object != m_pending && m_checks.contains(object) && !m_running && runPending())
            m_pending = static_cast<QWidget *>(object);
        return false;
    case QEvent::FocusOut:
        if (object != m_pending || m_running || leavesUnchecked(object) || runPending())
            return false;
        swallowPress();
        return m_window->focusWidget() == object; // the focus is back: hide from the box that it was gone
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        return m_swallow && object->isWidgetType() && m_window->isAncestorOf(static_cast<QWidget *>(object));
    default: return false;
    }
}

/// QApplication::focusWidget() is already the new widget here. A menu causes focus events but does not change the focus
/// widget. When the focus goes to another window or program, the check runs once it has come back.
bool LeavingChecks::leavesUnchecked(const QObject *box) const
{
    QWidget *next = QApplication::focusWidget();
    return !next || next == box || !m_window->isVisible() || !m_window->isAncestorOf(next) || m_exempt.contains(next);
}

/// Runs the check that was postponed when the focus moved to an exempt widget, such as a calendar button.
void LeavingChecks::makeUpFor(QWidget *from, QWidget *to)
{
    const bool isDue = m_pending && to && to != m_pending && m_exempt.contains(from) && !m_exempt.contains(to) &&
                       m_window->isAncestorOf(to);
    if (isDue && !m_running && !runPending())
        swallowPress();
}

bool LeavingChecks::runPending()
{
    const QPointer<QWidget> box = m_pending;
    if (!box || !m_checks.contains(box))
        return true;
    const QPointer<LeavingChecks> alive = this; // a message box runs an event loop, in which this may be deleted
    const auto done = qScopeGuard([alive] {
        if (alive)
            alive->m_running = false;
    });
    m_running = true;
    const bool passed = m_checks.value(box)();
    if (!alive)
        return passed;
    // The focus is put back while m_running is still set, so that the box that it leaves is not checked.
    if (!passed && box && m_window->isVisible())
        FocusAtFault(*box);
    // A box that passed but keeps the focus stays pending, because its text may change again without a new FocusIn. If
    // the check itself moved the focus, the FocusIn of the new box was ignored, so that box becomes pending here.
    if (QWidget *now = m_window->focusWidget(); passed && now != box)
        m_pending = m_checks.contains(now) ? now : nullptr;
    return passed;
}

/// Discards the mouse press that moved the focus; it has not reached its button yet.
void LeavingChecks::swallowPress()
{
    m_swallow = true;
    qApp->installEventFilter(this);
    const auto stop = [this] {
        m_swallow = false;
        qApp->removeEventFilter(this);
    };
    QMetaObject::invokeMethod(this, stop, Qt::QueuedConnection);
}
