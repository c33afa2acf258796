// The item model of ListView: the rows of a ListSource, in the source's order or sorted by the text of a column.
// Sorting moves only row numbers; the text of a cell is fetched when it is painted. Rows and columns count from 0 here.
#pragma once

#include <memory>
#include <vector>

#include <QAbstractTableModel>

#include "platform/controls/ListView.h"

class ListModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    explicit ListModel(QObject *parent = nullptr);
    ~ListModel() override;

    void setColumns(const std::vector<ListColumn> &columns);
    /// Shows the source in its own order.
    void setSource(std::shared_ptr<const ListSource> source);
    /// A source without rows.
    static std::shared_ptr<const ListSource> noRows();
    /// Adds a row at the end. If the list shows another source, that source's rows are removed first. Throws
    /// KeyNotUnique.
    void append(const QString &key, const QStringList &texts);
    /// Sorts case-insensitively and stably: in both directions, rows with equal texts keep the source's order. The
    /// selection stays on its row.
    void sortBy(int column, Qt::SortOrder order);
    bool isSorted() const { return m_sorted; }

    QString text(int row, int column) const { return m_source->text(sourceRow(row), column); }
    QString key(int row) const { return m_source->key(sourceRow(row)); }
    int sourceRow(int row) const { return m_order.empty() ? row : m_order[size_t(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    class OwnRows;

    void applyOrder(std::vector<int> order);
    std::vector<int> sortedOrder(int column, Qt::SortOrder order);
    std::vector<int> turnedOrder();

    std::vector<ListColumn> m_columns;
    std::shared_ptr<const ListSource> m_source;
    std::shared_ptr<OwnRows> m_own; ///< the source if rows are added one by one; else null
    std::vector<int> m_order;       ///< the source row of each row; empty in the source's own order
    bool m_sorted = false;
    int m_sortedColumn = -1;
    Qt::SortOrder m_sortedOrder = Qt::AscendingOrder;
    std::vector<bool> m_likeAbove; ///< for each sorted row, whether its text equals that of the row above
};
