// Keys of a list that run commands: Enter opens, Insert adds, Delete deletes. A key presses a button of the window, so
// it does what the button does, and nothing while the button is disabled. It acts on the row with the frame and selects
// it first, because a list that gets the focus frames its first row without selecting it. The key event goes no
// further: Enter in a dialog's list does not press the default button as well.
#pragma once

#include <functional>
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

/// On Ctrl+C copies the selected row of a list, and on Ctrl+Shift+C the whole list with its headings, as text for a
/// spreadsheet: tabs separate the cells, and a cell with a tab, a line break or a quotation mark in it is put in
/// quotation marks. The columns are in the order shown. Returns false for any other key.
bool CopyFromList(const QAbstractItemView &list, const QKeyEvent &key);

/// Makes letters that are typed quickly go to the next row that begins with them, and one letter that is repeated to
/// the next such row each time. `column` says where to look; by default it is the first column. The first Down selects
/// the framed row, and the first letter looks at it as well: otherwise both would skip it, and the only row of a list
/// could not be selected by keys.
void MoveByKeys(QAbstractItemView &list, std::function<int()> column = {});

inline void OnListKey(QAbstractItemView &list, Qt::Key key, QAbstractButton &button)
{
    listkeys::connectTo(list, key, button, &QAbstractButton::click);
}

inline void OnListKey(QAbstractItemView &list, Qt::Key key, QAction &command)
{
    listkeys::connectTo(list, key, command, &QAction::trigger);
}
