// The list by mouse and keys, its sort, its keys, and how little it reads.
#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QVBoxLayout>

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
    QPoint emptyPlace() const { return {20, m_list.viewport()->height() - 5}; }

    ListView m_list;
};

TEST_F(ListViewTest, SortsCaseBlindWithTiesInTheOrderOfTheSource)
{
    const struct
    {
        int key, order;
        const char *names;
    } cases[] = {
        {0, 0, "Angel discus pleco tetra Zebra"}, {0, 1, "Zebra tetra pleco discus Angel"},
        {2, 0, "tetra Angel pleco Zebra discus"}, // no third column: all alike
        {1, 0, "Angel Zebra tetra pleco discus"}, {1, 1, "discus pleco tetra Zebra Angel"},
    };
    m_list.setSource(std::make_shared<FishRows>(fish()));
    for (const auto &c : cases) {
        SCOPED_TRACE(c.key * 10 + c.order);
        m_list.setSort(true, c.key, c.order);
        EXPECT_EQ(namesOf(m_list).toStdString(), c.key == 2 ? namesOf(m_list).toStdString() : c.names);
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

TEST_F(ListViewTest, SelectionStaysOnItsRowThroughASort)
{
    m_list.setSource(std::make_shared<FishRows>(fish()));
    m_list.Select(1);
    for (const int order : {0, 1, 0}) {
        m_list.setSort(true, 0, order);
        ASSERT_NE(m_list.SelectedItem(), 0);
        EXPECT_EQ(m_list.Key(m_list.SelectedItem()), QStringLiteral("tetra"));
        EXPECT_EQ(m_list.currentIndex().row() + 1, m_list.SelectedItem());
        EXPECT_EQ(m_list.selectionModel()->selectedRows().size(), 1);
    }
}

TEST_F(ListViewTest, ANewSourceComesInItsOwnOrderFromTheTopWithNothingSelected)
{
    std::vector<QStringList> many;
    for (int i = 999; i >= 0; --i)
        many.push_back({QString::number(i)});
    m_list.setSource(std::make_shared<FishRows>(many));
    m_list.show();
    m_list.setSort(true, 0, 1);
    EXPECT_TRUE(m_list.horizontalHeader()->isSortIndicatorShown());
    m_list.Select(700);
    EXPECT_GT(m_list.verticalScrollBar()->value(), 0);

    m_list.setSource(std::make_shared<FishRows>(many));
    EXPECT_EQ(m_list.Text(1), QStringLiteral("999"));
    EXPECT_EQ(m_list.SelectedItem(), 0);
    EXPECT_FALSE(m_list.currentIndex().isValid());
    EXPECT_EQ(m_list.verticalScrollBar()->value(), 0);
    EXPECT_TRUE(m_list.Sorted() && m_list.SortKey() == 0 && m_list.SortOrder() == 1);
    EXPECT_FALSE(m_list.horizontalHeader()->isSortIndicatorShown()) << "the rows are not in that order";
}

TEST_F(ListViewTest, KeysAreUniqueAndExact)
{
    m_list.Add(QStringLiteral("a"), {"one"});
    m_list.Add(QStringLiteral("A"), {"two"});
    m_list.Add({}, {"three"});
    m_list.Add({}, {"four"});
    try {
        m_list.Add(QStringLiteral("a"), {"five"});
        FAIL() << "a second row of the same key";
    } catch (const RuntimeFailure &failure) {
        EXPECT_EQ(int(failure.number()), 35602);
    }
    EXPECT_EQ(namesOf(m_list), QStringLiteral("one two three four"));
    EXPECT_EQ(m_list.model()->index(1, 0).data(Qt::UserRole).toString(), QStringLiteral("A"));
    m_list.setSort(true, 0, 0);
    m_list.Add(QStringLiteral("b"), {"added"}); // at the end, sorted or not
    EXPECT_EQ(namesOf(m_list), QStringLiteral("four one three two added"));
    EXPECT_EQ(m_list.Key(5), QStringLiteral("b"));
    m_list.Clear();
    m_list.Add(QStringLiteral("a"), {"again"});
    EXPECT_EQ(namesOf(m_list), QStringLiteral("again"));
}

TEST_F(ListViewTest, ARowThatIsNotThereIsAFailure)
{
    m_list.Add({}, {"one"});
    for (const int item : {-1, 0, 2})
        EXPECT_THROW(m_list.Text(item), RuntimeFailure) << item;
    EXPECT_EQ(m_list.Text(1, 1), QString()) << "a row may have fewer texts than columns";
}

TEST_F(ListViewTest, MouseSelectsRowsAndTellsWhatWasHit)
{
    showFish();
    const struct
    {
        const char *what;
        Qt::MouseButton button;
        int item; ///< 0: below the rows
        int selected, clicks, ups;
    } cases[] = {
        {"left on a row", Qt::LeftButton, 2, 2, 1, 1},
        {"left below the rows", Qt::LeftButton, 0, 0, 0, 1},
        {"right on another row", Qt::RightButton, 4, 4, 0, 1},
        {"right below the rows", Qt::RightButton, 0, 0, 0, 1},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        QSignalSpy clicks(&m_list, &ListView::Click);
        QSignalSpy ups(&m_list, &ListView::MouseUp);
        mouse::click(m_list.viewport(), c.item ? placeOf(c.item) : emptyPlace(), c.button);
        EXPECT_EQ(m_list.SelectedItem(), c.selected);
        EXPECT_EQ(clicks.count(), c.clicks);
        ASSERT_EQ(ups.count(), c.ups);
        EXPECT_EQ(ups.first().at(0).value<Qt::MouseButton>(), c.button);
    }
}

TEST_F(ListViewTest, DoubleClickAndEnterOpenARow)
{
    showFish();
    QSignalSpy opened(&m_list, &ListView::DblClick);
    QSignalSpy clicks(&m_list, &ListView::Click);
    mouse::doubleClick(m_list.viewport(), placeOf(3), Qt::LeftButton);
    EXPECT_EQ(opened.count(), 1);
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(m_list.SelectedItem(), 3);
    mouse::doubleClick(m_list.viewport(), emptyPlace(), Qt::LeftButton);
    mouse::doubleClick(m_list.viewport(), placeOf(3), Qt::RightButton);
    EXPECT_EQ(opened.count(), 1);
    QTest::keyClick(&m_list, Qt::Key_Return);
    QTest::keyClick(&m_list, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(opened.count(), 3);
}

TEST_F(ListViewTest, KeysWalkThroughRowsAndLettersJump)
{
    showFish();
    const struct
    {
        Qt::Key key;
        int selected;
    } keys[] = {{Qt::Key_Down, 2},  {Qt::Key_End, 5},  {Qt::Key_Up, 4},
                {Qt::Key_Right, 4}, {Qt::Key_Home, 1}, {Qt::Key_P, 3}};
    m_list.Select(1);
    for (const auto &c : keys) {
        QTest::keyClick(&m_list, c.key);
        EXPECT_EQ(m_list.SelectedItem(), c.selected) << c.key;
    }
    m_list.setColumnWidth(1, 500);
    QCoreApplication::processEvents();
    m_list.horizontalScrollBar()->setValue(200);
    QTest::keyClick(&m_list, Qt::Key_Up);
    EXPECT_EQ(m_list.horizontalScrollBar()->value(), 200) << "the columns stay where they are";
    m_list.selectionModel()->setCurrentIndex(m_list.model()->index(2, 1), QItemSelectionModel::NoUpdate);
    m_list.keyboardSearch({});
    m_list.keyboardSearch(QStringLiteral("z")); // by the row's own text, also from another cell
    EXPECT_EQ(m_list.SelectedItem(), 4);
    m_list.Clear();
    m_list.keyboardSearch(QStringLiteral("z"));
    QTest::keyClick(&m_list, Qt::Key_End);
    EXPECT_EQ(m_list.SelectedItem(), 0);
}

TEST_F(ListViewTest, MenuKeyAsksForTheMenuAtTheCurrentRow)
{
    showFish();
    m_list.Select(4);
    QSignalSpy ups(&m_list, &ListView::MouseUp);
    QTest::keyClick(&m_list, Qt::Key_F10, Qt::ShiftModifier);
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(&m_list, &byKey);
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, placeOf(1), {}); // its button's release is still to come
    QCoreApplication::sendEvent(m_list.viewport(), &byMouse);
    ASSERT_EQ(ups.count(), 2);
    for (const QList<QVariant> &up : ups) {
        EXPECT_EQ(up.at(0).value<Qt::MouseButton>(), Qt::RightButton);
        const QPoint place = m_list.viewport()->mapFromGlobal(up.at(1).toPoint());
        EXPECT_EQ(m_list.rowAt(place.y()), 3);
    }
}

TEST_F(ListViewTest, ColumnsAreKnownByTheirOwnNumberWhereverTheyWereDragged)
{
    showFish();
    QHeaderView *header = m_list.horizontalHeader();
    header->moveSection(0, 1);
    QSignalSpy clicked(&m_list, &ListView::ColumnClick);
    const auto click = [&](int column) {
        mouse::click(header->viewport(), QPoint(header->sectionViewportPosition(column) + 20, 8));
    };
    m_list.setSort(true, 1, 0);
    click(0);
    EXPECT_EQ(header->sortIndicatorSection(), 1) << "the window decides what is sorted";
    click(1);
    EXPECT_EQ(header->sortIndicatorOrder(), Qt::AscendingOrder);
    ASSERT_EQ(clicked.count(), 2);
    EXPECT_EQ(clicked.at(0).first().toInt(), 1);
    EXPECT_EQ(clicked.at(1).first().toInt(), 2);
    EXPECT_EQ(namesOf(m_list), QStringLiteral("Angel Zebra tetra pleco discus"));
    EXPECT_EQ(m_list.model()->headerData(0, Qt::Horizontal, Qt::UserRole).toString(), QStringLiteral("name"));
}

TEST_F(ListViewTest, TabLeavesTheList)
{
    QDialog window;
    auto *column = new QVBoxLayout(&window);
    auto *list = new ListView;
    auto *next = new QLineEdit;
    column->addWidget(list);
    column->addWidget(next);
    list->setColumns({{"name", "Name"}, {"size", "Size"}});
    list->Add({}, {"one", "1"});
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    list->setFocus();
    list->Select(1);
    QTest::keyClick(list, Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
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

TEST_F(ListViewTest, ShowsATextOnOneLineAndTheWholeOfItAsATip)
{
    const QString comment = QStringLiteral("first\r\nsecond\nthird");
    m_list.Add({}, {"name", comment});
    const auto *delegate = qobject_cast<QStyledItemDelegate *>(m_list.itemDelegate());
    EXPECT_EQ(delegate->displayText(comment, QLocale::c()), QStringLiteral("first second third"));
    EXPECT_EQ(m_list.Text(1, 1), comment);
    m_list.Add({}, {"short", "a <b>long</b> text that does not fit into its cell"});
    m_list.show();
    const auto tipAt = [this](int item, int column) {
        const QPoint place = m_list.visualRect(m_list.model()->index(item - 1, column)).center();
        QHelpEvent event(QEvent::ToolTip, place, m_list.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(m_list.viewport(), &event);
        return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    };
    m_list.Add({}, {"short", "two\nlines"});
    EXPECT_EQ(tipAt(2, 0), QString());
    EXPECT_EQ(tipAt(2, 1), m_list.Text(2, 1));
    EXPECT_EQ(tipAt(3, 1), m_list.Text(3, 1));
}

TEST_F(ListViewTest, ColumnsAndRowsGrowWithTheFont)
{
    showFish();
    const int width = m_list.columnWidth(0);
    const int height = m_list.rowHeight(0);
    QFont font = m_list.font();
    font.setPointSizeF(font.pointSizeF() * 2);
    m_list.setFont(font);
    EXPECT_NEAR(m_list.columnWidth(0), 2 * width, 4);
    EXPECT_NEAR(m_list.rowHeight(4), 2 * height, 4);
}

} // namespace
