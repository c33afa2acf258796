#include "Figure.h"

#include <memory>
#include <vector>

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include "Desk.h"
#include "OwnProcess.h"
#include "platform/controls/ListView.h"
#include "windows/logbook/LogRows.h"

namespace {

constexpr int pages = 50;

/// The same rows in a model that is written in the obvious way: Qt's own functions make the text of a cell when it is
/// asked for.
class PlainModel : public QAbstractTableModel
{
public:
    explicit PlainModel(std::shared_ptr<const Rows> rows) : m_rows(std::move(rows))
    {
        for (const LogColumn &column : KindOf(WaterTab).list.columns) {
            const QString picture = QLatin1String(column.picture);
            const qsizetype point = picture.indexOf(u'.');
            m_columns.push_back({QLatin1String(column.heading),
                                 column.column ? m_rows->column(QLatin1String(column.column)) : -1,
                                 point < 0 ? -1 : int(picture.size() - point - 1), column.right});
        }
    }

    int rowCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : int(m_rows->count()); }
    int columnCount(const QModelIndex &parent) const override { return parent.isValid() ? 0 : int(m_columns.size()); }
    QVariant data(const QModelIndex &index, int role) const override
    {
        const Column &column = m_columns[size_t(index.column())];
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignVCenter | (column.right ? Qt::AlignRight : Qt::AlignLeft));
        return role == Qt::DisplayRole ? QVariant(text(index.row(), column)) : QVariant();
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        return orientation == Qt::Horizontal && role == Qt::DisplayRole ? m_columns[size_t(section)].heading
                                                                        : QVariant();
    }

private:
    struct Column
    {
        QString heading;
        int index;  ///< -1 for date and time
        int places; ///< -1 for a text
        bool right;
    };

    QString text(int row, const Column &column) const
    {
        if (column.index < 0)
            return m_rows->date(row, 1).toString(QStringLiteral("MM/dd/yy")) + QStringLiteral(" - ") +
                   m_rows->time(row, 2).toString(QStringLiteral("hh:mm:ss ap"));
        if (column.places < 0)
            return m_rows->text(row, column.index);
        return QString::number(m_rows->number(row, column.index), 'f', column.places);
    }

    std::shared_ptr<const Rows> m_rows;
    std::vector<Column> m_columns;
};

/// A table as large as the list, with the same columns, row heights and looks.
std::shared_ptr<QTableView> plainTable(const ListView &list, QAbstractItemModel *model)
{
    auto table = std::make_shared<QTableView>();
    model->setParent(table.get());
    table->setModel(model);
    table->setFont(list.font());
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setSelectionBehavior(QTableView::SelectRows);
    table->setSelectionMode(QTableView::SingleSelection);
    table->setHorizontalScrollMode(QTableView::ScrollPerPixel);
    table->horizontalHeader()->setHighlightSections(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setMinimumSectionSize(list.rowHeight(0));
    table->verticalHeader()->setDefaultSectionSize(list.rowHeight(0));
    for (int column = 0; column < list.columnCount(); ++column)
        table->setColumnWidth(column, list.columnWidth(column));
    table->resize(list.size());
    table->show();
    return table;
}

Sample scroll(QTableView &table)
{
    table.horizontalScrollBar()->setValue(0);
    table.scrollToTop();
    table.setCurrentIndex(table.model()->index(0, 0));
    settle(&table);
    const std::int64_t start = nowNanoseconds();
    for (int page = 0; page < pages; ++page) {
        PaintWatch watch(table.viewport());
        QTest::keyClick(&table, Qt::Key_PageDown);
        watch.wait();
    }
    return {millisecondsSince(start)};
}

} // namespace

Figure scrollFigure(Desk &desk)
{
    ListView &list = desk.waterList();
    const auto table = plainTable(list, new PlainModel(desk.waterRows()));
    return {.name = QStringLiteral("Scrolling 50 pages, ms"),
            .target = 1,
            .ours =
                [&desk, &list] {
                    desk.openFirstTank(); // restores the order after a sort
                    return scroll(list);
                },
            .floor = [table] { return scroll(*table); },
            .repetitions = 25};
}
