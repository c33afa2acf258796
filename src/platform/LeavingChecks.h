// Runs a box's check when the focus leaves it within its window, and before a storing button acts, so that a bad value
// can reach the store by no way out of the box: mouse, mnemonic, Enter, another program and back. A box shown from a
// check puts the focus back, and the press that was on its way is swallowed.
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
    /// True if the content may stand; else it has shown its message itself, and the focus goes back to the box.
    using Check = std::function<bool()>;

    explicit LeavingChecks(QWidget *window);
    void watch(QWidget *box, Check check);
    /// Widgets that are reached without a check: Cancel, Close, the calendar button, up-downs. Who leaves them for
    /// another box is asked then.
    void exempt(QWidget *widget) { m_exempt.insert(widget); }
    /// Asks that box, too, before anything is stored: its text was changed by arrows beside it, without its being
    /// entered.
    void suspect(QWidget *box);
    /// First line of every handler that stores: false if the box last entered does not pass.
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
    QPointer<QWidget> m_pending; ///< the box entered last that has not passed since
    QList<QWidget *> m_suspects;
    bool m_running = false;
    bool m_swallow = false;
};
