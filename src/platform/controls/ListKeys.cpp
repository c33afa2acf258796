#include "platform/controls/ListKeys.h"

#include <algorithm>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QTableView>

namespace {

class FirstDown : public QObject
{
public:
    explicit FirstDown(QAbstractItemView &list) : QObject(&list), m_list(list) { list.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool plain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        const QModelIndex framed = m_list.currentIndex();
        QItemSelectionModel &selection = *m_list.selectionModel();
        if (key->key() != Qt::Key_Down || !plain || !framed.isValid() || selection.hasSelection())
            return false;
        selection.select(framed, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        return true;
    }

private:
    QAbstractItemView &m_list;
};

QString quotedIfNeeded(const QString &cell)
{
    static constexpr QStringView special = u"\t\r\n\"";
    const bool plain = std::ranges::none_of(cell, [](QChar c) { return special.contains(c); });
    return plain ? cell : u'"' + QString(cell).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

/// A row, or with row -1 the headings.
QString lineOf(const QAbstractItemView &list, int row)
{
    const QAbstractItemModel &model = *list.model();
    const auto *table = qobject_cast<const QTableView *>(&list);
    QStringList cells;
    for (int place = 0; place < model.columnCount(); ++place) {
        const int column = table ? table->horizontalHeader()->logicalIndex(place) : place;
        if (table && table->isColumnHidden(column))
            continue;
        cells.append(quotedIfNeeded(
            (row < 0 ? model.headerData(column, Qt::Horizontal) : model.index(row, column).data()).toString()));
    }
    return cells.join(u'\t') + u'\n';
}

} // namespace

bool CopyFromList(const QAbstractItemView &list, const QKeyEvent &key)
{
    const bool whole = key.keyCombination() == (Qt::CTRL | Qt::SHIFT | Qt::Key_C);
    if (!whole && !key.matches(QKeySequence::Copy))
        return false;
    QString copied;
    const QModelIndexList selected = list.selectionModel()->selectedIndexes();
    if (whole) {
        if (qobject_cast<const QTableView *>(&list))
            copied = lineOf(list, -1);
        for (int row = 0; row < list.model()->rowCount(); ++row)
            copied += lineOf(list, row);
    } else if (!selected.isEmpty()) {
        copied = lineOf(list, selected.first().row());
    }
    if (!copied.isEmpty())
        QGuiApplication::clipboard()->setText(copied);
    return true;
}

void SelectWithFirstDown(QAbstractItemView &list) { new FirstDown(list); }
