#include "platform/controls/OptionFocus.h"

#include <algorithm>

#include <QButtonGroup>
#include <QFocusEvent>
#include <QRadioButton>

namespace {

/// Options without a button group form a group with those that have the same parent.
QAbstractButton *setOptionBeside(const QRadioButton &option)
{
    if (const QButtonGroup *group = option.group())
        return group->checkedButton();
    const auto siblings = option.parent()->findChildren<QRadioButton *>(Qt::FindDirectChildrenOnly);
    const auto set = std::ranges::find_if(
        siblings, [](const QRadioButton *sibling) { return sibling->isChecked() && !sibling->group(); });
    return set == siblings.end() ? nullptr : *set;
}

} // namespace

bool PassesFocusToSetOption(QObject &receiver, const QEvent &event)
{
    if (event.type() != QEvent::FocusIn)
        return false;
    const auto *option = qobject_cast<const QRadioButton *>(&receiver);
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    const bool enters =
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ActiveWindowFocusReason;
    if (!option || !enters || option->isChecked() || !option->parent())
        return false;
    QAbstractButton *set = setOptionBeside(*option);
    if (!set || !set->isVisible() || !set->isEnabled())
        return false;
    set->setFocus(reason);
    return true;
}
