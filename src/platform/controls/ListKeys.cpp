#include "platform/controls/ListKeys.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QTableView>

namespace {

class TypedKeys : public QObject
{
public:
    TypedKeys(QAbstractItemView &list, std::function<int()> column) :
        QObject(&list), m_list(list), m_column(std::move(column))
    {
        list.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto &key = *static_cast<QKeyEvent *>(event);
        const auto modifiers = key.modifiers() & ~Qt::KeypadModifier;
        QItemSelectionModel &selection = *m_list.selectionModel();
        if (key.key() != Qt::Key_Down || modifiers != Qt::NoModifier)
            return !(modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) && takesLetter(key.text());
        if (!m_list.currentIndex().isValid() || selection.hasSelection())
            return false;
        selection.select(m_list.currentIndex(), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        return true;
    }

private:
    bool takesLetter(const QString &letter)
    {
        const bool goesOn = m_since.isValid() && m_since.elapsed() <= QApplication::keyboardInputInterval();
        if (letter.isEmpty() || !letter.front().isPrint() || (letter == u" " && !goesOn)) // Space alone selects
            return false;
        m_typed = goesOn ? m_typed + letter : letter;
        m_since.start();
        search();
        return true;
    }

    void search()
    {
        const QModelIndex current = m_list.currentIndex();
        const bool isNew = m_typed.size() == 1 && m_list.selectionModel()->hasSelection();
        int row = rowWith(m_typed, current.row() + (isNew ? 1 : 0));
        if (row < 0 && m_typed.size() > 1 && m_typed.count(m_typed.front()) == m_typed.size()) // the same letter again
            row = rowWith(m_typed.left(1), current.row() + 1);
        if (row >= 0)
            m_list.setCurrentIndex(m_list.model()->index(row, qMax(0, current.column())));
    }

    /// The next row that begins with the typed text, from this row on and then from the top; -1 if there is none.
    int rowWith(const QString &text, int from) const
    {
        const QAbstractItemModel &model = *m_list.model();
        const int rows = model.rowCount(), column = m_column ? m_column() : 0;
        for (int i = qMax(0, from); i < qMax(0, from) + rows; ++i)
            if (model.index(i % rows, column).data().toString().startsWith(text, Qt::CaseInsensitive))
                return i % rows;
        return -1;
    }

    QAbstractItemView &m_list;
    std::function<int()> m_column;
    QString m_typed;
    QElapsedTimer m_since; ///< the last letter
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
        QApplication::clipboard()->setText(copied);
    return true;
}

void MoveByKeys(QAbstractItemView &list, std::function<int()> column) { new TypedKeys(list, std::move(column)); }
