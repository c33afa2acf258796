#include "store/RecordsetState.h"

#include <QStringList>

#include "platform/core/RuntimeFailure.h"

namespace {

[[noreturn]] void throwGone(const QString &table)
{
    throw RuntimeFailure(Failure::NoCurrentRecord,
                         QStringLiteral("The entry of %1 is no longer in the database.").arg(table));
}

} // namespace

std::vector<Value> RecordsetState::currentRow() const
{
    std::vector<Value> row;
    for (int c = 0; c < rows->columns(); ++c)
        row.push_back(currentValue(c));
    return row;
}

Value RecordsetState::currentValue(int column) const
{
    const auto found = changed.find(current);
    return found != changed.end() ? found->second[std::size_t(column)] : rows->value(current, column);
}

void RecordsetState::moveTo(qsizetype row)
{
    lapse();
    current = row;
    while (deleted.contains(current))
        ++current;
}

void RecordsetState::lapse()
{
    buffer = Buffer::None;
    values.clear();
    written.clear();
}

void RecordsetState::insertRow()
{
    QStringList names, marks;
    for (const QString &name : rows->names()) {
        names.append(quoted(name));
        marks.append(QStringLiteral("?"));
    }
    const QString sql =
        QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(quoted(table), names.join(u','), marks.join(u','));
    Statement insert(connection, sql, QStringLiteral("Adding a row to %1.").arg(table), Statement::Use::Again);
    insert.bind(values);
    insert.run();
}

void RecordsetState::updateRow()
{
    QStringList assignments;
    std::vector<Value> parameters;
    for (int c = 0; c < rows->columns(); ++c) {
        if (!written[std::size_t(c)])
            continue;
        assignments.append(quoted(rows->names()[c]) + QStringLiteral(" = ?"));
        parameters.push_back(values[std::size_t(c)]);
    }
    if (assignments.isEmpty())
        return;
    parameters.push_back(rowids[std::size_t(current)]);
    const QString sql = QStringLiteral("UPDATE %1 SET %2 WHERE rowid = ?").arg(quoted(table), assignments.join(u", "));
    Statement update(connection, sql, QStringLiteral("Changing a row of %1.").arg(table), Statement::Use::Again);
    update.bind(parameters);
    if (update.run() == 0)
        throwGone(table);
    changed[current] = values;
}

void RecordsetState::deleteRow()
{
    const QString sql = QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(quoted(table));
    Statement remove(connection, sql, QStringLiteral("Deleting a row of %1.").arg(table), Statement::Use::Again);
    remove.bind({rowids[std::size_t(current)]});
    if (remove.run() == 0)
        throwGone(table);
    deleted.insert(current);
}
