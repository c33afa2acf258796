#include "windows/shell/MenuEntry.h"

#include <QToolBar>

#include "platform/controls/Icons.h"

MenuEntry *AddToolButton(QToolBar &bar, const QString &key, const QString &toolTip, const char *image,
                         std::function<void()> action)
{
    auto *button = new MenuEntry(key, toolTip, std::move(action), &bar);
    button->setIcon(Icon(image));
    button->setToolTip(toolTip);
    bar.addAction(button);
    bar.widgetForAction(button)->setObjectName(key);
    bar.widgetForAction(button)->setAccessibleName(toolTip);
    return button;
}
