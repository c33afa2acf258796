// Keys of a list that run commands: Enter opens, Insert adds, Delete deletes. A key presses a button of the window, so
// it does what the button does, and nothing while the button is disabled. It acts on the row with the frame and selects
// it first, because a list that gets the focus frames its first row without selecting it. The key event goes no
// further: Enter in a dialog's list does not press the default button as well.
#pragma once

#include <initializer_list>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QKeyEvent>
#include <QShortcut>

inline const std::initializer_list<Qt::Key> enterKeys = {Qt::Key_Return, Qt::Key_Enter};

namespace listkeys {

template <class Command>
void connectTo(QAbstractItemView &list, Qt::Key key, Command &command, void (Command::*press)())
{
    auto *shortcut = new QShortcut(QKeySequence(key), &list);
    shortcut->setContext(Qt::WidgetShortcut);
    shortcut->setAutoRepeat(false); // holding Delete down deletes only one row
    QObject::connect(shortcut, &QShortcut::activated, &command, [&list, &command, press] {
        if (!list.selectionModel()->isRowSelected(list.currentIndex().row()) && list.currentIndex().isValid())
            list.selectionModel()->select(list.currentIndex(),
                                          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        (command.*press)();
    });
}

} // namespace listkeys

/// Copies the selected row of a list at Ctrl+C, and the whole list with its headings at Ctrl+Shift+C, as text that a
/// spreadsheet takes: a tab between two cells, and quotation marks around a cell that has a tab, a line break or such
/// marks itself. The columns are in the order on the screen. False if the key is neither of the two.
bool CopyFromList(const QAbstractItemView &list, const QKeyEvent &key);

/// The first Down selects the framed row; it would pass it over, and a single row could not be chosen by keys.
void SelectWithFirstDown(QAbstractItemView &list);

inline void OnListKey(QAbstractItemView &list, Qt::Key key, QAbstractButton &button)
{
    listkeys::connectTo(list, key, button, &QAbstractButton::click);
}

inline void OnListKey(QAbstractItemView &list, Qt::Key key, QAction &command)
{
    listkeys::connectTo(list, key, command, &QAction::trigger);
}
