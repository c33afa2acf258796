// An entry of a menu, or a button of a toolbar, with what it does. One that has no action yet stays disabled, whatever
// the windows say of it: nothing that a keeper can press does nothing.
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

/// A button of a toolbar under its key, which is the name of its control too, with its tip and its picture.
MenuEntry *AddToolButton(QToolBar &bar, const QString &key, const QString &toolTip, const char *image,
                         std::function<void()> action);
