// A list of rows and columns: rows have keys, columns can be dragged, and one whole row is selected at a time. Rows and
// column headers are numbered from 1; sub-items and SortKey count from 0. The list keeps no item per row but asks a
// ListSource, so that a hundred thousand rows cost nothing. It can sort by the texts of a column, case-insensitively
// and stably.
#pragma once

#include <memory>
#include <vector>

#include <QTableView>

/// Where a list gets its rows from. No function here may throw, because they are called while painting.
class ListSource
{
public:
    virtual ~ListSource() = default;
    virtual int count() const = 0;
    /// The text of a cell; row and column from 0.
    virtual QString text(int row, int column) const = 0;
    /// Identifies the row: unique in the source; empty if its rows have no keys.
    virtual QString key(int row) const = 0;
};

struct ListColumn
{
    QString key; ///< in Qt::UserRole of the header
    QString heading;
    bool right = false; ///< right-aligned
    int width = 96;     ///< as in WindowSize.h; a heading that needs more gets more
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

    /// Order and widths of the columns as text, such as "2:80 1:96 3": the number of each column and its width, in the
    /// units of ListColumn::width. The last visible column has no width, because it fills the list.
    QString columnLayout() const;
    /// Restores a layout of columnLayout(). A text that is not a layout of this list changes nothing.
    void setColumnLayout(const QString &layout);

    /// Shows the rows of a source in the source's order, even if Sorted() is true. Selects no row.
    void setSource(std::shared_ptr<const ListSource> source);
    /// Adds a row at the end; meant for short lists. Throws KeyNotUnique if the key exists already. An empty key means
    /// that the row has none.
    void Add(const QString &key, const QStringList &texts);
    void Clear();

    int Count() const;
    /// The text of a cell: row from 1, sub-item from 0 (the row's own text). Throws SubscriptOutOfRange if there is no
    /// such row.
    QString Text(int item, int subItem = 0) const;
    QString Key(int item) const;
    /// The row of the source, from 0, that a row shows in whatever order.
    int SourceRow(int item) const;
    void Select(int item); ///< scrolls to the row as well; 0 selects nothing
    /// The selected row, from 1; 0 if none is selected.
    int SelectedItem() const;

    bool Sorted() const { return m_sorted; }
    int SortKey() const { return m_sortKey; }
    int SortOrder() const { return m_sortOrder; } ///< 0 ascending, 1 descending
    /// Sets all three, and sorts by the texts of column `sortKey` if `sorted` is true. They keep their values over
    /// Clear() and setSource(); the header shows its arrow only while the rows are sorted.
    void setSort(bool sorted, int sortKey, int sortOrder);

    /// Whether a click selects the whole row or only its cell, and whether headers can be dragged. Both are on by
    /// default.
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
    bool isSortShown() const;
    int firstColumn() const;
    void showSortArrow();
    void menuByKey();
    QRect rowRect(int row) const;

    ListModel *m_model;
    double m_scale = 1;
    bool m_sorted = false;
    int m_sortKey = 0;
    int m_sortOrder = 0;
    bool m_doubleClicked = false; ///< the release after a double click is not a click
};

/// Sets the style of every list in a child window: whole rows are selected, and headers can be dragged.
inline void SetListViewStyle(ListView &list)
{
    list.setFullRowSelect(true);
    list.setHeaderDragDrop(true);
}

/// Handles a click on a column header (from 1): sorts by that column, or reverses the order if the list is sorted by it
/// already.
inline void SortByColumn(ListView &list, int index)
{
    const bool again = list.Sorted() && list.SortKey() == index - 1;
    list.setSort(true, index - 1, again ? 1 - list.SortOrder() : 0);
}
