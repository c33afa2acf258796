// Tests of the list's sorting, keys and columns.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QSignalSpy>

#include "platform/controls/ListKeys.h"
#include "platform/controls/ListView.h"
#include "support/Mouse.h"

using Rows = std::vector<QStringList>;

void fill(ListView &list, const Rows &rows)
{
    list.Clear();
    for (const QStringList &row : rows)
        list.Add(row[0], row);
}

struct ListViewTest : testing::Test
{
    ListViewTest()
    {
        m_list.setColumns({{"name", "Name", false, 120}, {"size", "Size", true, 60}});
        m_list.resize(300, 200);
        m_list.show();
        m_list.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_list));
    }
    std::string names() const
    {
        QStringList names;
        for (int item = 1; item <= m_list.Count(); ++item)
            names += m_list.Text(item);
        return names.join(u' ').toStdString();
    }

    ListView m_list;
    const Rows m_fish{{"tetra", "b"}, {"Angel", "A"}, {"pleco", "B"}, {"Zebra", "a"}, {"discus", "C"}};
};

TEST_F(ListViewTest, SortsStablyAndKeepsTheSelection)
{
    fill(m_list, m_fish);
    m_list.Select(1);
    for (const auto &[key, order, sorted] : {std::tuple{0, 0, "Angel discus pleco tetra Zebra"},
                                             {0, 1, "Zebra tetra pleco discus Angel"},
                                             {1, 0, "Angel Zebra tetra pleco discus"},
                                             {1, 1, "discus tetra pleco Angel Zebra"}}) {
        m_list.setSort(true, key, order);
        EXPECT_EQ(names(), sorted);
        ASSERT_NE(m_list.SelectedItem(), 0);
        EXPECT_EQ(m_list.Key(m_list.SelectedItem()), QStringLiteral("tetra"));
        EXPECT_EQ(m_list.currentIndex().row() + 1, m_list.SelectedItem());
    }
    m_list.setSort(false, 0, 0);
    EXPECT_EQ(names(), "discus tetra pleco Angel Zebra") << "turning it off moves nothing";
    fill(m_list, m_fish);
    EXPECT_EQ(names(), "tetra Angel pleco Zebra discus") << "new rows come in their own order";
    EXPECT_TRUE(m_list.SelectedItem() == 0 && !m_list.currentIndex().isValid());
    EXPECT_FALSE(m_list.horizontalHeader()->isSortIndicatorShown());
}

TEST_F(ListViewTest, ReportsTheClickedColumnWhereverItWasDraggedAndSortsNothingByItself)
{
    QSignalSpy clicked(&m_list, &ListView::ColumnClick);
    QHeaderView *header = m_list.horizontalHeader();
    header->moveSection(0, 1);
    m_list.setSort(true, 0, 0);
    mouse::click(header->viewport(), QPoint(header->sectionViewportPosition(0) + 20, 8));
    EXPECT_EQ(clicked.value(0).value(0).toInt(), 1);
    EXPECT_EQ(header->sortIndicatorSection(), 0) << "the window decides what is sorted";
}

TEST_F(ListViewTest, GoesToTheRowThatBeginsWithTheTypedLetters)
{
    const struct
    {
        bool bySize;
        int start; ///< the selected row; 0 if the first one is only framed
        const char *keys, *row;
    } cases[] = {
        {false, 0, "a", "Angel"},  {false, 0, "t", "tetra"},         {false, 1, "t", "two spots"},
        {false, 1, "tt", "tetra"}, {false, 0, "ANGL", "angler"},     {false, 5, "z", "Zebra"},
        {false, 3, "x", "angler"}, {false, 1, "two s", "two spots"}, {true, 1, "z", "Angel"},
    };
    QApplication::setKeyboardInputInterval(60000);
    for (const auto &[bySize, start, keys, row] : cases) {
        ListView list; // of its own, because letters that follow each other quickly belong together
        list.setColumns({{"name", "Name"}, {"size", "Size"}});
        fill(list, {{"tetra", "b"}, {"Angel", "Z"}, {"angler", "c"}, {"Zebra", "a"}, {"two spots", "t"}});
        list.setSort(bySize, 1, 0);
        list.Select(start);
        if (start == 0)
            list.selectionModel()->setCurrentIndex(list.model()->index(0, 1), QItemSelectionModel::NoUpdate);
        QTest::keyClicks(&list, keys);
        ASSERT_NE(list.SelectedItem(), 0) << keys;
        EXPECT_EQ(list.Text(list.SelectedItem()), row) << keys << " from " << start << " by size: " << bySize;
    }
    QApplication::setKeyboardInputInterval(-1);
}

TEST_F(ListViewTest, LeftAndRightGoToTheCellsOfARowAndBringThemIntoSight)
{
    m_list.setColumns(
        {{"name", "Name", false, 250}, {"size", "Size", true, 250}, {"no", "No"}, {"kind", "Kind", false, 250}});
    m_list.setColumnHidden(2, true);
    m_list.horizontalHeader()->moveSection(3, 0);
    fill(m_list, {{"Angel", "9", "x", "Cichlid"}, {"Tetra", "2", "x", "Characin"}});
    m_list.Select(2);
    for (const auto &[key, text] : {std::pair(Qt::Key_Left, "Characin"),
                                    {Qt::Key_Left, "Characin"},
                                    {Qt::Key_Right, "Tetra"},
                                    {Qt::Key_Right, "2"},
                                    {Qt::Key_Up, "9"}}) {
        QTest::keyClick(&m_list, key);
        EXPECT_EQ(m_list.currentIndex().data().toString(), text);
        EXPECT_EQ(m_list.SelectedItem(), m_list.currentIndex().row() + 1);
        EXPECT_GE(m_list.viewport()->rect().intersected(m_list.visualRect(m_list.currentIndex())).width(), 240);
    }
}

TEST_F(ListViewTest, CopiesTheSelectedRowOrTheWholeListForASpreadsheet)
{
    fill(m_list, {{"Oscar", "12"}, {"Say \"ah\"", "1\t2"}, {"two\nlines", ""}});
    m_list.horizontalHeader()->moveSection(1, 0);
    const auto copy = [this](Qt::KeyboardModifiers modifiers) {
        QApplication::clipboard()->setText("before");
        EXPECT_TRUE(CopyFromList(m_list, QKeyEvent(QEvent::KeyPress, Qt::Key_C, modifiers)));
        return QApplication::clipboard()->text();
    };
    EXPECT_EQ(copy(Qt::ControlModifier), "before") << "no row is selected";
    m_list.Select(2);
    EXPECT_EQ(copy(Qt::ControlModifier), "\"1\t2\"\t\"Say \"\"ah\"\"\"\n");
    EXPECT_EQ(copy(Qt::ControlModifier | Qt::ShiftModifier),
              "Size\tName\n12\tOscar\n\"1\t2\"\t\"Say \"\"ah\"\"\"\n\t\"two\nlines\"\n");
    m_list.setColumnHidden(1, true);
    EXPECT_EQ(copy(Qt::ControlModifier), "\"Say \"\"ah\"\"\"\n");
}
