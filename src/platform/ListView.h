// A list of rows in columns, in report mode: keyed rows, columns that can be dragged, whole rows selected, one at a
// time. Rows are numbered from 1, as are column headers; sub-items and SortKey count from 0. The list holds no item a
// row: it asks a ListSource, so that a hundred thousand rows cost nothing. A text sort of its own is case-blind and
// stable, ties in the source's order.
#pragma once

#include <memory>
#include <vector>

#include <QTableView>

/// Where a list gets its rows from. Nothing here may throw: it is called while painting.
class ListSource
{
public:
    virtual ~ListSource() = default;
    virtual int count() const = 0;
    /// The text of a cell; row and column from 0.
    virtual QString text(int row, int column) const = 0;
    /// The row's identity, unique in the source; empty where rows have none.
    virtual QString key(int row) const = 0;
};

struct ListColumn
{
    QString key; ///< in Qt::UserRole of the header
    QString heading;
    bool right = false; ///< aligned to the right
    int width = 96;     ///< pixels at 9 points and 96 dpi; scaled with the font
};

class ListModel;

class ListView : public QTableView
{
    Q_OBJECT
public:
    explicit ListView(QWidget *parent = nullptr);
    ~ListView() override;

    void setColumns(const std::vector<ListColumn> &columns);
    int columnCount() const;

    /// Order and widths of the columns as text, "2:80 1:96 3": column and width, as ListColumn gives it. The last one
    /// in sight has no width, for it fills the list.
    QString columnLayout() const;
    /// Puts the columns so. A text that is not such a layout of this list changes nothing.
    void setColumnLayout(const QString &layout);

    /// Shows the rows of a source in its order, whatever Sorted says; selects nothing.
    void setSource(std::shared_ptr<const ListSource> source);
    /// Rows added one by one at the end, for short lists. Throws KeyNotUnique for a key that is there already (an empty
    /// key is none).
    void Add(const QString &key, const QStringList &texts);
    void Clear();

    int Count() const;
    /// Row from 1, sub-item from 0 (the row's own text). Throws SubscriptOutOfRange where there is no such row.
    QString Text(int item, int subItem = 0) const;
    QString Key(int item) const;
    bool Selected(int item) const;
    void Select(int item); ///< and scrolls to it; 0 selects nothing
    /// The selected row, from 1; 0 where none is.
    int SelectedItem() const;

    bool Sorted() const { return m_sorted; }
    int SortKey() const { return m_sortKey; }
    int SortOrder() const { return m_sortOrder; } ///< 0 ascending, 1 descending
    /// Sets the three at once; sorts by the texts of column `sortKey` if `sorted`. They outlive Clear() and
    /// setSource(); the arrow in the header goes with the order that is shown.
    void setSort(bool sorted, int sortKey, int sortOrder);

    /// Extended styles of the old desktops, both on from the start: a row is selected as a whole and not its hit cell
    /// alone, and headers can be dragged.
    void setFullRowSelect(bool on);
    void setHeaderDragDrop(bool on);

    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

signals:
    void ColumnClick(int index); ///< from 1
    void Click();                ///< a click of the left button, on a row or beside the rows
    void DblClick();             ///< a double click there, or Enter
    void MouseUp(Qt::MouseButton button,
                 const QPoint &globalPosition); ///< anywhere in the list, also by the menu key (right)

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    class RowDelegate;

    void checkRow(int item) const;
    void fitToFont();
    void showSortArrow();
    void menuByKey();
    QRect rowRect(int row) const;

    ListModel *m_model;
    double m_scale = 1;
    bool m_sorted = false;
    int m_sortKey = 0;
    int m_sortOrder = 0;
    bool m_doubleClicked = false; ///< its release is no click of its own
};

/// What every list of a child window has: rows selected whole, and headers that can be dragged.
inline void SetListViewStyle(ListView &list)
{
    list.setFullRowSelect(true);
    list.setHeaderDragDrop(true);
}

/// A click on the head of a column (from 1): sorts by its texts, or turns the order where it is sorted so already.
inline void SortByColumn(ListView &list, int index)
{
    const bool again = list.Sorted() && list.SortKey() == index - 1;
    list.setSort(true, index - 1, again ? 1 - list.SortOrder() : 0);
}
