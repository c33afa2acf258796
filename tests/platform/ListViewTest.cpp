// Tests of the list's sorting, keys and columns, and of how few texts it reads.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QSignalSpy>

#include "platform/controls/EmptyText.h"
#include "platform/controls/ListKeys.h"
#include "platform/controls/ListView.h"
#include "support/Mouse.h"
#include "support/ScriptedDoors.h"

/// Rows with a name and a size; the key is the name. Counts the texts that are asked for.
class FishRows : public ListSource
{
public:
    explicit FishRows(std::vector<QStringList> rows) : m_rows(std::move(rows)) {}
    int count() const override { return int(m_rows.size()); }
    QString text(int row, int column) const override
    {
        ++asked;
        return m_rows[size_t(row)].value(column);
    }
    QString key(int row) const override { return m_rows[size_t(row)].value(0); }
    mutable int asked = 0;

private:
    std::vector<QStringList> m_rows;
};

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
    void showFish()
    {
        m_list.setSource(std::make_shared<FishRows>(
            std::vector<QStringList>{{"tetra", "b"}, {"Angel", "A"}, {"pleco", "B"}, {"Zebra", "a"}, {"discus", "C"}}));
    }
    std::string names() const
    {
        QStringList names;
        for (int item = 1; item <= m_list.Count(); ++item)
            names += m_list.Text(item);
        return names.join(u' ').toStdString();
    }

    ListView m_list;
};

TEST_F(ListViewTest, SortsStablyAndKeepsTheSelection)
{
    showFish();
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
    showFish();
    EXPECT_EQ(names(), "tetra Angel pleco Zebra discus") << "a new source comes in its own order";
    EXPECT_TRUE(m_list.SelectedItem() == 0 && !m_list.currentIndex().isValid());
    EXPECT_FALSE(m_list.horizontalHeader()->isSortIndicatorShown());
}

TEST_F(ListViewTest, ReportsTheRowOfTheMenuKeyAndTheClickedColumn)
{
    showFish();
    m_list.selectionModel()->setCurrentIndex(m_list.model()->index(2, 1), QItemSelectionModel::NoUpdate);
    QTest::keyClick(&m_list, Qt::Key_Z); // searches the first column, even if another cell is current
    EXPECT_EQ(m_list.SelectedItem(), 4);
    QSignalSpy ups(&m_list, &ListView::MouseUp), clicked(&m_list, &ListView::ColumnClick);
    QTest::keyClick(&m_list, Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_EQ(ups.count(), 1);
    EXPECT_EQ(ups.first().at(0).value<Qt::MouseButton>(), Qt::RightButton);
    EXPECT_EQ(m_list.rowAt(m_list.viewport()->mapFromGlobal(ups.first().at(1).toPoint()).y()), 3);
    QHeaderView *header = m_list.horizontalHeader();
    header->moveSection(0, 1);
    m_list.setSort(true, 0, 0);
    mouse::click(header->viewport(), QPoint(header->sectionViewportPosition(0) + 20, 8));
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.at(0).first().toInt(), 1);
    EXPECT_EQ(header->sortIndicatorSection(), 0) << "the window decides what is sorted";
}

TEST_F(ListViewTest, GoesToTheRowThatBeginsWithTheTypedLetters)
{
    enum Order { AsItCame, SizeFirst, SortedBySize };
    const std::vector<QStringList> fish{
        {"tetra", "b"}, {"Angel", "Z"}, {"angler", "c"}, {"Zebra", "a"}, {"two spots", "t"}};
    const struct
    {
        Order order;
        int start; ///< the selected row; 0 if the first one is only framed
        const char *keys, *row;
    } cases[] = {
        {AsItCame, 0, "a", "Angel"},         {AsItCame, 0, "t", "tetra"},      {AsItCame, 1, "t", "two spots"},
        {AsItCame, 1, "tt", "tetra"},        {AsItCame, 1, "tw", "two spots"}, {AsItCame, 0, "ANGL", "angler"},
        {AsItCame, 1, "two s", "two spots"}, {AsItCame, 5, "z", "Zebra"},      {AsItCame, 3, "x", "angler"},
        {SizeFirst, 1, "z", "Angel"},        {SortedBySize, 1, "z", "Angel"},
    };
    QApplication::setKeyboardInputInterval(60000);
    for (const auto &[order, start, keys, row] : cases) {
        ListView list; // of its own, because letters that follow each other quickly belong together
        list.setColumns({{"name", "Name"}, {"size", "Size"}});
        list.setSource(std::make_shared<FishRows>(fish));
        if (order == SizeFirst)
            list.horizontalHeader()->moveSection(1, 0);
        list.setSort(order == SortedBySize, 1, 0);
        list.setCurrentIndex(list.model()->index(0, 1));
        list.Select(start);
        if (start == 0)
            list.selectionModel()->setCurrentIndex(list.model()->index(0, 1), QItemSelectionModel::NoUpdate);
        QTest::keyClicks(&list, keys);
        ASSERT_NE(list.SelectedItem(), 0) << keys;
        EXPECT_EQ(list.Text(list.SelectedItem()), row) << keys << " from " << start << " in order " << order;
    }
    QApplication::setKeyboardInputInterval(-1);
}

TEST_F(ListViewTest, LeftAndRightGoToTheCellsOfARowAndBringThemIntoSight)
{
    m_list.setColumns({{"name", "Name", false, 250},
                       {"size", "Size", true, 250},
                       {"hidden", "Hidden"},
                       {"kind", "Kind", false, 250}});
    m_list.setColumnHidden(2, true);
    m_list.horizontalHeader()->moveSection(3, 0);
    m_list.setSource(std::make_shared<FishRows>(
        std::vector<QStringList>{{"Angel", "9", "x", "Cichlid"}, {"Tetra", "2", "x", "Characin"}}));
    m_list.Select(2);
    const QAccessibleTableInterface *table = QAccessible::queryAccessibleInterface(&m_list)->tableInterface();
    for (const auto &[key, words] : {std::pair(Qt::Key_Left, "Kind: Characin"),
                                     {Qt::Key_Left, "Kind: Characin"},
                                     {Qt::Key_Right, "Name: Tetra"},
                                     {Qt::Key_Right, "Size: 2"},
                                     {Qt::Key_Up, "Size: 9"},
                                     {Qt::Key_Left, "Name: Angel"}}) {
        QTest::keyClick(&m_list, key);
        const QAccessibleInterface *cell = table->cellAt(m_list.currentIndex().row(), m_list.currentIndex().column());
        EXPECT_EQ(cell->text(QAccessible::Description) + ": " + cell->text(QAccessible::Name), words);
        EXPECT_EQ(m_list.SelectedItem(), m_list.currentIndex().row() + 1);
        const QRect seen = m_list.viewport()->rect().intersected(m_list.visualRect(m_list.currentIndex()));
        EXPECT_GE(seen.width(), 240) << words;
    }
}

TEST_F(ListViewTest, CopiesTheSelectedRowOrTheWholeListForASpreadsheet)
{
    m_list.setSource(std::make_shared<FishRows>(
        std::vector<QStringList>{{"Oscar", "12"}, {"Say \"ah\"", "1\t2"}, {"two\nlines", ""}}));
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
    EXPECT_FALSE(CopyFromList(m_list, QKeyEvent(QEvent::KeyPress, Qt::Key_C, Qt::NoModifier)));
}

TEST_F(ListViewTest, ReadsOnlyTheRowsThatItShows)
{
    const auto rows = std::make_shared<FishRows>(std::vector<QStringList>(100000, QStringList{"a name", "1"}));
    m_list.setSource(rows);
    m_list.Select(70000);
    m_list.grab();
    EXPECT_LT(rows->asked, 1000);
    QTest::keyClick(&m_list, Qt::Key_X); // no row begins with this letter
    EXPECT_LT(rows->asked, 101000);
    rows->asked = 0;
    m_list.setSort(true, 0, 0);
    m_list.grab();
    EXPECT_LT(rows->asked, 102000) << "one text a row makes the sort's keys";
}

TEST_F(ListViewTest, SaysWhatToDoWhileItIsEmpty)
{
    const auto picture = [this] { return m_list.viewport()->grab().toImage(); };
    const auto described = [this] {
        QCoreApplication::processEvents();
        return m_list.accessibleDescription();
    };
    m_list.Clear();
    const QImage blank = picture();
    auto *text = new EmptyText(m_list, "Press Insert.");
    const QImage told = picture();
    EXPECT_NE(told, blank);
    EXPECT_EQ(described(), "Press Insert.");
    m_list.Add("Tang", {"Tang", "8"});
    EXPECT_EQ(described(), "");
    m_list.setAccessibleDescription("Eight fish"); // a description that another part of the program has set stays
    text->refresh();
    EXPECT_EQ(described(), "Eight fish");
    m_list.Clear();
    EXPECT_EQ(picture(), told);
    text->setText({});
    EXPECT_EQ(picture(), blank);
}
