// The list by mouse and keys, its sort, its keys, and how little it reads.
#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>

#include "platform/ListView.h"
#include "support/Mouse.h"
#include "support/ScriptedDoors.h"

namespace {

/// Rows of name and size; the key is the name. Counts what it is asked for.
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

std::vector<QStringList> fish()
{
    return {{"tetra", "b 1"}, {"Angel", "A 2"}, {"pleco", "B 3"}, {"Zebra", "a 4"}, {"discus", "C 5"}};
}

QString namesOf(const ListView &list)
{
    QStringList names;
    for (int item = 1; item <= list.Count(); ++item)
        names += list.Text(item);
    return names.join(u' ');
}

class ListViewTest : public testing::Test
{
protected:
    ListViewTest()
    {
        m_list.setObjectName(QStringLiteral("lstv_Fish"));
        m_list.setColumns({{"name", "Name", false, 120}, {"size", "Size", true, 60}});
        m_list.resize(300, 200);
    }

    void showFish()
    {
        m_list.setSource(std::make_shared<FishRows>(fish()));
        m_list.show();
        m_list.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_list));
    }
    QPoint placeOf(int item) const { return m_list.visualRect(m_list.model()->index(item - 1, 0)).center(); }

    ListView m_list;
};

TEST_F(ListViewTest, SortsCaseBlindWithTiesInTheOrderOfTheSourceAndTheSelectionOnItsRow)
{
    m_list.setSource(std::make_shared<FishRows>(fish()));
    m_list.Select(1);
    const std::tuple<int, int, const char *> cases[] = {{0, 0, "Angel discus pleco tetra Zebra"},
                                                        {0, 1, "Zebra tetra pleco discus Angel"},
                                                        {1, 0, "Angel Zebra tetra pleco discus"},
                                                        {1, 1, "discus pleco tetra Zebra Angel"}};
    for (const auto &[key, order, names] : cases) {
        m_list.setSort(true, key, order);
        EXPECT_EQ(namesOf(m_list).toStdString(), names);
        ASSERT_NE(m_list.SelectedItem(), 0);
        EXPECT_EQ(m_list.Key(m_list.SelectedItem()), QStringLiteral("tetra"));
        EXPECT_EQ(m_list.currentIndex().row() + 1, m_list.SelectedItem());
    }
    m_list.setSource(std::make_shared<FishRows>(
        std::vector<QStringList>{{"1", "same"}, {"2", "SAME"}, {"3", "other"}, {"4", "Same"}, {"5", "OTHER"}}));
    m_list.setSort(true, 1, 0);
    EXPECT_EQ(namesOf(m_list), QStringLiteral("3 5 1 2 4"));
    m_list.setSort(true, 1, 1);
    EXPECT_EQ(namesOf(m_list), QStringLiteral("1 2 4 3 5"));
    m_list.setSort(false, 0, 0); // turning it off moves nothing
    EXPECT_EQ(namesOf(m_list), QStringLiteral("1 2 4 3 5"));
}

TEST_F(ListViewTest, ANewSourceComesInItsOwnOrderWithNothingSelected)
{
    for (int pass = 0; pass < 2; ++pass) {
        m_list.setSource(std::make_shared<FishRows>(fish()));
        EXPECT_EQ(m_list.Text(1), QStringLiteral("tetra"));
        EXPECT_EQ(m_list.SelectedItem(), 0);
        EXPECT_FALSE(m_list.currentIndex().isValid());
        EXPECT_FALSE(m_list.horizontalHeader()->isSortIndicatorShown()) << "the rows are not in that order";
        m_list.setSort(true, 0, 1);
        EXPECT_TRUE(m_list.horizontalHeader()->isSortIndicatorShown());
        m_list.Select(4);
    }
}

TEST_F(ListViewTest, KeysAreUniqueAndExact)
{
    m_list.Add(QStringLiteral("a"), {"one"});
    m_list.Add(QStringLiteral("A"), {"two"});
    m_list.Add({}, {"three"});
    m_list.Add({}, {"four"});
    EXPECT_THROW(m_list.Add(QStringLiteral("a"), {"five"}), RuntimeFailure);
    EXPECT_EQ(namesOf(m_list), QStringLiteral("one two three four"));
    EXPECT_EQ(m_list.Text(1, 1), QString()) << "a row may have fewer texts than columns";
    for (const int item : {-1, 0, 5})
        EXPECT_THROW(m_list.Text(item), RuntimeFailure) << item;
    m_list.setSort(true, 0, 0);
    m_list.Add(QStringLiteral("b"), {"added"}); // at the end, sorted or not
    EXPECT_EQ(namesOf(m_list), QStringLiteral("four one three two added"));
    m_list.Clear();
    m_list.Add(QStringLiteral("a"), {"again"});
    EXPECT_EQ(namesOf(m_list), QStringLiteral("again"));
}

TEST_F(ListViewTest, LettersJumpAndTheMenuKeyAsksForTheMenuAtItsRow)
{
    showFish();
    QTest::keyClick(&m_list, Qt::Key_P);
    EXPECT_EQ(m_list.SelectedItem(), 3);
    m_list.selectionModel()->setCurrentIndex(m_list.model()->index(2, 1), QItemSelectionModel::NoUpdate);
    m_list.keyboardSearch({});
    m_list.keyboardSearch(QStringLiteral("z")); // by the row's own text, also from another cell
    EXPECT_EQ(m_list.SelectedItem(), 4);
    QSignalSpy ups(&m_list, &ListView::MouseUp);
    QTest::keyClick(&m_list, Qt::Key_F10, Qt::ShiftModifier);
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, placeOf(1), {}); // its button's release is still to come
    QCoreApplication::sendEvent(m_list.viewport(), &byMouse);
    ASSERT_EQ(ups.count(), 1);
    EXPECT_EQ(ups.first().at(0).value<Qt::MouseButton>(), Qt::RightButton);
    EXPECT_EQ(m_list.rowAt(m_list.viewport()->mapFromGlobal(ups.first().at(1).toPoint()).y()), 3);
}

TEST_F(ListViewTest, ColumnsAreKnownByTheirOwnNumberWhereverTheyWereDragged)
{
    showFish();
    QHeaderView *header = m_list.horizontalHeader();
    header->moveSection(0, 1);
    QSignalSpy clicked(&m_list, &ListView::ColumnClick);
    m_list.setSort(true, 1, 0);
    mouse::click(header->viewport(), QPoint(header->sectionViewportPosition(0) + 20, 8));
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.at(0).first().toInt(), 1);
    EXPECT_EQ(header->sortIndicatorSection(), 1) << "the window decides what is sorted";
    EXPECT_EQ(namesOf(m_list), QStringLiteral("Angel Zebra tetra pleco discus"));
}

TEST_F(ListViewTest, ReadsOnlyTheRowsThatItShows)
{
    std::vector<QStringList> many(100000, QStringList{"a name", "1"});
    const auto rows = std::make_shared<FishRows>(std::move(many));
    m_list.show();
    m_list.setSource(rows);
    m_list.grab();
    m_list.Select(70000);
    m_list.grab();
    EXPECT_LT(rows->asked, 1000);
    rows->asked = 0;
    m_list.setSort(true, 0, 0);
    m_list.grab();
    EXPECT_LT(rows->asked, 101000) << "one text a row makes the sort's keys";
}

} // namespace
