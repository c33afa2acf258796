// Validates an input box when the focus leaves it for another widget of its window, and again before a button stores,
// so that a bad value cannot be stored by any way out of the box: mouse, mnemonic, Enter, a switch to another program
// and back. When a check fails, the focus returns to the box, and the mouse click that moved the focus is discarded.
#pragma once

#include <functional>

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QWidget>

class LeavingChecks : public QObject
{
public:
    /// Returns true if the content is valid. Otherwise it has shown its message itself, and the focus goes back to the
    /// box.
    using Check = std::function<bool()>;

    explicit LeavingChecks(QWidget *window);
    void watch(QWidget *box, Check check);
    /// Marks a widget that can take the focus without a check: Cancel, Close, a calendar button, an up-down. The check
    /// runs when the focus moves on from there.
    void exempt(QWidget *widget) { m_exempt.insert(widget); }
    /// Has this box checked as well before anything is stored: the arrows beside it changed its text, so it may never
    /// have had the focus.
    void suspect(QWidget *box);
    /// Every handler that stores calls this first. Returns false if nothing may be stored, because the box entered last
    /// or a suspect one is not valid.
    bool passes();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    bool leavesUnchecked(const QObject *box) const;
    bool runPending();
    void makeUpFor(QWidget *from, QWidget *to);
    void swallowPress();

    QWidget *m_window;
    QHash<QObject *, Check> m_checks;
    QSet<QWidget *> m_exempt;
    QPointer<QWidget> m_pending; ///< the box entered last, while its check is due
    QList<QWidget *> m_suspects;
    bool m_running = false;
    bool m_swallow = false;
};
