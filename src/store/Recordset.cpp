#include "store/Recordset.h"

#include <unordered_set>

#include <sqlite3.h>

#include "platform/core/RuntimeFailure.h"
#include "store/Conversion.h"
#include "store/RecordsetState.h"

namespace {

using Buffer = RecordsetState::Buffer;

void requireOpen(const std::shared_ptr<RecordsetState> &state)
{
    if (!state || !state->isOpen())
        throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("The list of rows is not open."));
}

void requireCurrent(const RecordsetState &state)
{
    if (!state.hasCurrent())
        throw RuntimeFailure(Failure::NoCurrentRecord);
}

void requireBuffer(const RecordsetState &state)
{
    if (state.buffer == Buffer::None)
        throw RuntimeFailure(Failure::NoCurrentRecord, QStringLiteral("No row is being added or changed."));
}

} // namespace

Value Field::value() const
{
    requireOpen(m_state);
    if (m_state->buffer != Buffer::None)
        return m_state->values[std::size_t(m_column)];
    requireCurrent(*m_state);
    return m_state->currentValue(m_column);
}

void Field::setValue(const Value &value)
{
    requireOpen(m_state);
    requireBuffer(*m_state);
    const Rows &rows = *m_state->rows;
    m_state->values[std::size_t(m_column)] = converted(value, rows.kind(m_column), rows.names()[m_column]);
    m_state->written[std::size_t(m_column)] = true;
}

Recordset::Recordset() = default;

Recordset::Recordset(std::shared_ptr<RecordsetState> state) : m_state(std::move(state)) {}

RecordsetState &Recordset::state() const
{
    requireOpen(m_state);
    return *m_state;
}

RecordsetState &Recordset::writable() const
{
    RecordsetState &s = state();
    if (s.table.isEmpty())
        throw RuntimeFailure(Failure::PermissionDenied, QStringLiteral("The rows of this query can only be read."));
    return s;
}

bool Recordset::BOF() const { return RecordCount() == 0; }

bool Recordset::EOF_() const
{
    const RecordsetState &s = state();
    return s.current >= s.rows->count();
}

qsizetype Recordset::RecordCount() const
{
    const RecordsetState &s = state();
    return s.rows->count() - qsizetype(s.deleted.size());
}

qsizetype Recordset::AbsolutePosition() const
{
    const RecordsetState &s = state();
    if (!s.hasCurrent())
        return -1;
    return s.current - std::distance(s.deleted.begin(), s.deleted.lower_bound(s.current));
}

void Recordset::MoveFirst()
{
    RecordsetState &s = state();
    s.moveTo(0);
    requireCurrent(s);
}

void Recordset::MoveNext()
{
    RecordsetState &s = state();
    if (EOF_())
        throw RuntimeFailure(Failure::NoCurrentRecord);
    s.moveTo(s.current + 1);
}

int Recordset::columnIndex(const QString &name) const
{
    const int column = state().rows->column(name);
    if (column < 0)
        throw RuntimeFailure(Failure::NoSuchColumn, QStringLiteral("There is no column \"%1\".").arg(name));
    return column;
}

Field Recordset::operator[](const QString &name)
{
    const int column = columnIndex(name);
    if (m_state->buffer == Buffer::None)
        requireCurrent(*m_state);
    return Field(m_state, column);
}

std::shared_ptr<const Rows> Recordset::rows() const { return state().rows; }

void Recordset::AddNew()
{
    RecordsetState &s = writable();
    s.lapse();
    s.values.resize(std::size_t(s.rows->columns()));
    s.written.resize(s.values.size());
    s.buffer = Buffer::Adding;
}

void Recordset::Edit()
{
    RecordsetState &s = writable();
    s.lapse();
    requireCurrent(s);
    s.values = s.currentRow();
    s.written.resize(s.values.size());
    s.buffer = Buffer::Editing;
}

void Recordset::Update()
{
    RecordsetState &s = writable();
    requireBuffer(s);
    if (s.buffer == Buffer::Adding)
        s.insertRow();
    else
        s.updateRow();
    s.lapse();
}

void Recordset::Delete()
{
    RecordsetState &s = writable();
    s.lapse();
    requireCurrent(s);
    s.deleteRow();
}

bool Recordset::FindFirst(const QString &condition, const std::vector<Value> &parameters)
{
    RecordsetState &s = writable();
    s.lapse();
    const QString sql = QStringLiteral("SELECT rowid FROM %1 WHERE (%2)").arg(quoted(s.table), condition);
    Statement query(s.connection, sql, QStringLiteral("Looking for a row of %1.").arg(s.table));
    query.bind(parameters);
    std::unordered_set<qint64> found;
    while (query.step())
        found.insert(sqlite3_column_int64(query.handle(), 0));
    qsizetype row = 0;
    while (row < s.rows->count() && (s.deleted.contains(row) || !found.contains(s.rowids[std::size_t(row)])))
        ++row;
    s.moveTo(row);
    return s.hasCurrent();
}

void Recordset::Close()
{
    RecordsetState &s = state();
    s.lapse();
    s.connection.reset();
}
