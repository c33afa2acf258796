// The keeper's hands: keys and mouse through the window system, aimed at what is visible. The windows must be shown.
#pragma once

#include "platform/controls/ListView.h"
#include "support/Mouse.h"
#include "windows/Keeper.h"
#include "windows/logbook/frm_Waterlog.h"
#include "windows/shell/MenuEntry.h"

namespace hand {

/// Presses a key for the open menu, or else for the widget with the focus in the window in front.
inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QWidget *takes = nullptr;
    for (QWidget *next : {QApplication::activeWindow(), QApplication::focusWidget(), QApplication::activePopupWidget()})
        takes = next ? next : takes;
    ASSERT_TRUE(takes) << "no window is in front";
    QTest::keyClick(takes, key, modifiers);
}

/// Writes characters of any script into the widget with the focus.
inline void write(const QString &text)
{
    for (const char32_t c : text.toUcs4()) {
        const auto key = c == U'\n' ? Qt::Key_Return : static_cast<Qt::Key>(QChar::toUpper(c));
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), key, QString::fromUcs4(&c, 1), {});
    }
}

/// Clicks into a box and replaces its text. A list of suggestions that opens below it is closed; without a window
/// manager, the window does not become active again by itself when the list closes.
inline void type(QWidget &box, const QString &text)
{
    mouse::click(&box);
    EXPECT_TRUE(box.hasFocus()) << box.objectName().toStdString();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    write(text);
    if (QApplication::activePopupWidget())
        press(Qt::Key_Escape);
    QCoreApplication::processEvents();
    box.activateWindow();
    QCoreApplication::processEvents();
    EXPECT_TRUE(isInFront(*box.window()));
}

template <class T> void click(QWidget &window, const QString &name) { mouse::click(&control<T>(window, name)); }

/// Clicks the arrow "up" or "down" of an up-down.
inline void step(QWidget &window, const QString &upDown, const QString &arrow)
{
    click<QToolButton>(control<QWidget>(window, upDown), arrow);
}

/// Opens a menu of the menu bar and clicks an entry.
inline void choose(frm_OMKMDIMain &main, QMenu &menu, const QString &entry)
{
    QMenuBar &bar = *main.menuBar();
    mouse::click(&bar, bar.actionGeometry(menu.menuAction()).center());
    ASSERT_TRUE(menu.isVisible());
    clickEntry(menu, entry);
}

inline void clickTab(QTabWidget &tabs, int index)
{
    mouse::click(tabs.tabBar(), tabs.tabBar()->tabRect(index).center());
}

/// Rows and columns count from 1.
inline void clickRow(ListView &list, int row, Qt::MouseButton button = Qt::LeftButton)
{
    mouse::click(list.viewport(), list.visualRect(list.model()->index(row - 1, 0)).center(), button);
}

inline void clickHeading(ListView &list, int column)
{
    QHeaderView &header = *list.horizontalHeader();
    mouse::click(header.viewport(), QPoint(header.sectionViewportPosition(column - 1) + 12, header.height() / 2));
}

inline void clickTank(frm_Waterlog &logbook, const QString &name, Qt::MouseButton button = Qt::LeftButton)
{
    const auto found = logbook.TreeView1->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(found.size(), 1) << name.toStdString();
    mouse::click(logbook.TreeView1->viewport(), logbook.TreeView1->visualItemRect(found.front()).center(), button);
}

/// Opens the logbook, or brings it to the front, by its shortcut.
inline frm_Waterlog &openLogbook(frm_OMKMDIMain &main)
{
    EXPECT_TRUE(isInFront(main));
    press(Qt::Key_L, Qt::ControlModifier);
    return Form<frm_Waterlog>();
}

/// The texts of a list's column (sub-item from 0), from the top, joined by blanks.
inline QString column(const ListView &list, int subItem)
{
    QStringList texts;
    for (int row = 1; row <= list.Count(); ++row)
        texts << list.Text(row, subItem);
    return texts.join(u' ');
}

} // namespace hand
