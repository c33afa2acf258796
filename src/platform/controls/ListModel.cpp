#include "platform/controls/ListModel.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include <QSet>
#include <QStringList>

#include "platform/core/RuntimeFailure.h"

/// A source for rows that are added one by one.
class ListModel::OwnRows : public ListSource
{
public:
    int count() const override { return int(m_rows.size()); }
    QString text(int row, int column) const override { return m_rows[size_t(row)].texts.value(column); }
    QString key(int row) const override { return m_rows[size_t(row)].key; }

    bool has(const QString &key) const { return m_keys.contains(key); }
    void add(const QString &key, const QStringList &texts)
    {
        m_rows.push_back({key, texts});
        if (!key.isEmpty())
            m_keys.insert(key);
    }

private:
    struct Row
    {
        QString key;
        QStringList texts;
    };
    std::vector<Row> m_rows;
    QSet<QString> m_keys;
};

ListModel::ListModel(QObject *parent) : QAbstractTableModel(parent), m_source(noRows()) {}

ListModel::~ListModel() = default;

std::shared_ptr<const ListSource> ListModel::noRows() { return std::make_shared<const OwnRows>(); }

void ListModel::setColumns(const std::vector<ListColumn> &columns)
{
    beginResetModel();
    m_columns = columns;
    endResetModel();
}

void ListModel::setSource(std::shared_ptr<const ListSource> source)
{
    beginResetModel();
    m_source = source ? std::move(source) : noRows();
    m_own.reset();
    m_order.clear();
    m_sorted = false;
    endResetModel();
}

void ListModel::append(const QString &key, const QStringList &texts)
{
    if (!m_own) {
        auto own = std::make_shared<OwnRows>();
        setSource(own);
        m_own = std::move(own);
    }
    if (m_own->has(key))
        throw RuntimeFailure(Failure::KeyNotUnique, QStringLiteral("A row of the list has the key \"%1\".").arg(key));
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_own->add(key, texts);
    if (!m_order.empty())
        m_order.push_back(row);
    endInsertRows();
}

void ListModel::sortBy(int column, Qt::SortOrder order)
{
    const bool known = m_sorted && m_sortedColumn == column && int(m_likeAbove.size()) == rowCount();
    if (!known)
        applyOrder(sortedOrder(column, order));
    else if (m_sortedOrder != order)
        applyOrder(turnedOrder());
    m_sorted = true;
    m_sortedColumn = column;
    m_sortedOrder = order;
}

std::vector<int> ListModel::sortedOrder(int column, Qt::SortOrder order)
{
    const auto rows = size_t(rowCount());
    std::vector<QString> keys;
    keys.reserve(rows);
    for (size_t row = 0; row < rows; ++row)
        keys.push_back(m_source->text(int(row), column).toCaseFolded());
    std::vector<int> sorted(rows);
    std::iota(sorted.begin(), sorted.end(), 0);
    const auto before = [&keys](int a, int b) { return keys[size_t(a)] < keys[size_t(b)]; };
    if (order == Qt::AscendingOrder)
        std::stable_sort(sorted.begin(), sorted.end(), before);
    else
        std::stable_sort(sorted.begin(), sorted.end(), [&before](int a, int b) { return before(b, a); });
    m_likeAbove.assign(rows, false);
    for (size_t row = 1; row < rows; ++row)
        m_likeAbove[row] = keys[size_t(sorted[row])] == keys[size_t(sorted[row - 1])];
    return sorted;
}

/// The current order reversed, with rows of equal text still in the source's order. It fetches no texts.
std::vector<int> ListModel::turnedOrder()
{
    std::vector<int> turned;
    std::vector<bool> likeAbove;
    turned.reserve(m_order.size());
    likeAbove.reserve(m_order.size());
    for (size_t end = m_order.size(); end > 0;) {
        size_t start = end - 1;
        while (m_likeAbove[start])
            --start;
        for (size_t row = start; row < end; ++row) {
            turned.push_back(m_order[row]);
            likeAbove.push_back(row > start);
        }
        end = start;
    }
    m_likeAbove = std::move(likeAbove);
    return turned;
}

void ListModel::applyOrder(std::vector<int> order)
{
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> rowOf; // the new row of each source row; needed only for persistent indexes
    if (!before.isEmpty()) {
        rowOf.resize(order.size());
        for (size_t row = 0; row < order.size(); ++row)
            rowOf[size_t(order[row])] = int(row);
    }
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &index : before)
        after.append(createIndex(rowOf[size_t(sourceRow(index.row()))], index.column()));
    m_order = std::move(order);
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

int ListModel::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : m_source->count(); }

int ListModel::columnCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : int(m_columns.size()); }

/// Views call this while painting, where nothing may throw: a cell whose text cannot be made stays empty.
QVariant ListModel::data(const QModelIndex &index, int role) const
try {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: return text(index.row(), index.column());
    case Qt::AccessibleDescriptionRole: return m_columns[size_t(index.column())].heading;
    case Qt::UserRole: return index.column() == 0 ? QVariant(key(index.row())) : QVariant();
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter | (m_columns[size_t(index.column())].right ? Qt::AlignRight : Qt::AlignLeft));
    default: return {};
    }
} catch (const std::exception &) {
    return {};
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const ListColumn &column = m_columns[size_t(section)];
    switch (role) {
    case Qt::DisplayRole: return column.heading;
    case Qt::UserRole: return column.key;
    case Qt::TextAlignmentRole: return int(Qt::AlignVCenter | (column.right ? Qt::AlignRight : Qt::AlignLeft));
    default: return {};
    }
}
