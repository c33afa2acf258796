#include "platform/LeavingChecks.h"

#include <utility>

#include <QApplication>
#include <QEvent>
#include <QScopeGuard>

#include "platform/FocusAtFault.h"

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
        return m_window->focusWidget() == object; // it is back: the box need not know that it was gone
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        return m_swallow && object->isWidgetType() && m_window->isAncestorOf(static_cast<QWidget *>(object));
    default: return false;
    }
}

/// The focus widget is the new one already. A menu takes the focus events but leaves the focus widget as it is; another
/// window or program is made up for on return.
bool LeavingChecks::leavesUnchecked(const QObject *box) const
{
    QWidget *next = QApplication::focusWidget();
    return !next || next == box || !m_window->isVisible() || !m_window->isAncestorOf(next) || m_exempt.contains(next);
}

/// A check that was put off for a calendar button, when that is left in its turn.
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
    const QPointer<LeavingChecks> alive = this; // a message box runs the event loop
    const auto done = qScopeGuard([alive] {
        if (alive)
            alive->m_running = false;
    });
    m_running = true;
    const bool passed = m_checks.value(box)();
    if (!alive)
        return passed;
    // The focus is put back while this still runs, so that the box it comes from is not asked in its turn.
    if (!passed && box && m_window->isVisible())
        FocusAtFault(*box);
    // A box that passed but keeps the focus may yet be changed, without a new FocusIn. Where the check moved the focus
    // itself, its FocusIn has gone by.
    if (QWidget *now = m_window->focusWidget(); passed && now != box)
        m_pending = m_checks.contains(now) ? now : nullptr;
    return passed;
}

/// The press that took the focus is still on its way to its button.
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
