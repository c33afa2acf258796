#include "platform/chart/ChartTable.h"

#include <map>

#include <QAccessibleWidget>
#include <QPointer>

#include "platform/chart/Chart.h"
#include "platform/chart/ChartTitle.h"

namespace {

/// A cell by its place. It reads the chart when it is asked, so it lasts as long as the table.
class Cell : public QAccessibleInterface, public QAccessibleTableCellInterface
{
public:
    Cell(Chart &chart, int row, int column) : m_chart(&chart), m_row(row), m_column(column) {}

    bool isValid() const override
    {
        return m_chart && m_row < m_chart->data().rows() && m_column < m_chart->data().columns();
    }
    QObject *object() const override { return nullptr; }
    QWindow *window() const override { return parent() ? parent()->window() : nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_chart); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QRect rect() const override
    {
        const QRect place = isValid() ? m_chart->place(m_row + 1, m_column + 1).toAlignedRect() : QRect();
        return place.isNull() ? place : QRect(m_chart->mapToGlobal(place.topLeft()), place.size());
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = state.focusable = true;
        state.invalid = !isValid();
        state.focused = isValid() && m_chart->hasFocus() && m_chart->current() == ChartCell{m_row, m_column};
        return state;
    }
    QString text(QAccessible::Text kind) const override
    {
        if (!isValid() || (kind != QAccessible::Name && kind != QAccessible::Value))
            return {};
        const ChartData &data = m_chart->data();
        const QString value = data.isBlank(m_row, m_column) ? QStringLiteral("no value") : data.text(m_row, m_column);
        if (kind == QAccessible::Value)
            return value;
        return data.rowLabels.at(m_row) + QStringLiteral(", ") + TitleOf(data, m_column) + QStringLiteral(": ") + value;
    }
    void setText(QAccessible::Text, const QString &) override {}
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface *>(this) : nullptr;
    }

    bool isSelected() const override { return false; }
    QList<QAccessibleInterface *> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return m_column; }
    int rowIndex() const override { return m_row; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

private:
    QPointer<Chart> m_chart;
    int m_row;
    int m_column;
};

/// The cells are the children, row by row. Nothing can be selected.
class Table : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    explicit Table(Chart &chart) : QAccessibleWidget(&chart, QAccessible::Table), m_chart(chart) {}
    Table(const Table &) = delete;
    Table &operator=(const Table &) = delete;
    ~Table() override
    {
        for (const auto &[place, id] : m_cells)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return rowCount() * columnCount(); }
    QAccessibleInterface *child(int index) const override
    {
        return index < 0 || index >= childCount() ? nullptr : cellAt(index / columnCount(), index % columnCount());
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        auto *cell = const_cast<QAccessibleInterface *>(child)->tableCellInterface();
        return cell ? cell->rowIndex() * columnCount() + cell->columnIndex() : -1;
    }
    QAccessibleInterface *childAt(int x, int y) const override
    {
        return cellOf(m_chart.cellAt(m_chart.mapFromGlobal(QPoint(x, y))));
    }
    QAccessibleInterface *focusChild() const override { return cellOf(m_chart.current()); }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int column) const override
    {
        if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
            return nullptr;
        QAccessible::Id &id = m_cells[{row, column}];
        if (!id)
            id = QAccessible::registerAccessibleInterface(new Cell(m_chart, row, column));
        return QAccessible::accessibleInterface(id);
    }
    int rowCount() const override { return m_chart.data().rows(); }
    int columnCount() const override { return m_chart.data().columns(); }
    QString rowDescription(int row) const override { return m_chart.data().rowLabels.value(row); }
    QString columnDescription(int column) const override
    {
        return column < columnCount() ? TitleOf(m_chart.data(), column) : QString();
    }
    int selectedCellCount() const override { return 0; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<QAccessibleInterface *> selectedCells() const override { return {}; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *) override {}

private:
    QAccessibleInterface *cellOf(const ChartCell &cell) const { return cellAt(cell.row, cell.column); }

    Chart &m_chart;
    mutable std::map<std::pair<int, int>, QAccessible::Id> m_cells; ///< by row and column
};

QAccessibleInterface *tableOf(const QString &className, QObject *object)
{
    auto *chart = className == u"Chart" ? qobject_cast<Chart *>(object) : nullptr;
    return chart ? new Table(*chart) : nullptr;
}

} // namespace

void OfferChartsAsTables()
{
    QAccessible::installFactory(tableOf); // once, however often it is called
}
