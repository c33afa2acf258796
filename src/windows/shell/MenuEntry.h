// An entry of a menu or a button of a toolbar, with its action. An entry without an action stays disabled, even if a
// window enables it, so that every entry that can be chosen does something.
#pragma once

#include <functional>

#include <QAction>

#include "platform/controls/Guarded.h"

class QToolBar;

class MenuEntry : public QAction
{
public:
    MenuEntry(const QString &name, const QString &caption, std::function<void()> action, QObject *parent) :
        QAction(caption, parent), m_action(std::move(action))
    {
        setObjectName(name);
        QAction::setEnabled(m_action != nullptr);
        connect(this, &QAction::triggered, this, guarded([this] { run(); }));
    }

    void Enabled(bool on) { QAction::setEnabled(on && m_action); }
    void setEnabled(bool) = delete; ///< use Enabled()
    void run()
    {
        if (m_action)
            m_action();
    }
    bool hasAction() const { return m_action != nullptr; }

private:
    std::function<void()> m_action;
};

/// Adds a button to a toolbar. `key` is also the object name of its widget.
MenuEntry *AddToolButton(QToolBar &bar, const QString &key, const QString &toolTip, const char *image,
                         std::function<void()> action);
