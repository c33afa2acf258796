#include "store/Rows.h"

#include <bit>
#include <limits>

#include <sqlite3.h>

#include "platform/core/RuntimeFailure.h"
#include "store/Connection.h"
#include "store/Iso.h"

namespace {

struct KindOfWord
{
    std::string_view word;
    ColumnKind kind;
};

// The first word found in the declared type decides, so "DATE TEXT" is a date and "SMALLINT" a whole number.
constexpr KindOfWord kindsOfWords[] = {
    {"DATE", ColumnKind::Date},   {"TIME", ColumnKind::Time},      {"BOOL", ColumnKind::Boolean},
    {"INT", ColumnKind::Integer}, {"REAL", ColumnKind::Double},    {"DOUB", ColumnKind::Double},
    {"FLOA", ColumnKind::Double}, {"NUMERIC", ColumnKind::Double}, {"CHAR", ColumnKind::Text},
    {"TEXT", ColumnKind::Text},   {"CLOB", ColumnKind::Text},
};

constexpr std::uint64_t pack(std::size_t offset, std::size_t length)
{
    return std::uint64_t(offset) << 32 | std::uint64_t(length);
}

/// The bytes of a cell. For a text sqlite3_column_blob returns them without a copy; a number is converted to text
/// first.
std::string_view bytesOf(sqlite3_stmt *statement, int column, int type)
{
    const void *bytes = type == SQLITE_TEXT || type == SQLITE_BLOB ? sqlite3_column_blob(statement, column)
                                                                   : sqlite3_column_text(statement, column);
    return {static_cast<const char *>(bytes), bytes ? std::size_t(sqlite3_column_bytes(statement, column)) : 0};
}

} // namespace

ColumnKind kindOfDeclaration(std::string_view declared)
{
    std::string upper(declared);
    for (char &c : upper)
        if (c >= 'a' && c <= 'z')
            c = char(c - 32);
    for (const KindOfWord &row : kindsOfWords)
        if (upper.find(row.word) != std::string::npos)
            return row.kind;
    return ColumnKind::None;
}

Rows Rows::describe(Statement &statement)
{
    Rows rows;
    rows.takeColumns(statement, statement.columnCount());
    return rows;
}

Rows Rows::read(Statement &statement, std::vector<qint64> *rowids)
{
    Rows rows;
    bool more =
        statement.step(); // before the columns are read, because the first step may find that the schema has changed
    const int count = statement.columnCount() - (rowids ? 1 : 0);
    rows.takeColumns(statement, count);
    for (; more; more = statement.step()) {
        for (int c = 0; c < count; ++c)
            rows.takeCell(statement, c);
        if (rowids)
            rowids->push_back(sqlite3_column_int64(statement.handle(), count));
    }
    return rows;
}

bool Rows::readNext(Statement &statement)
{
    m_cells.clear();
    m_tags.clear();
    m_texts.clear();
    m_lastTexts.assign(m_kinds.size(), 0);
    const bool more = statement.step();
    if (m_names.isEmpty())
        takeColumns(statement, statement.columnCount());
    for (int c = 0; more && c < columns(); ++c)
        takeCell(statement, c);
    return more;
}

void Rows::takeColumns(Statement &statement, int count)
{
    for (int c = 0; c < count; ++c) {
        const char *declared = sqlite3_column_decltype(statement.handle(), c);
        m_names.append(QString::fromUtf8(sqlite3_column_name(statement.handle(), c)));
        m_kinds.push_back(kindOfDeclaration(declared ? declared : ""));
    }
    m_lastTexts.assign(m_kinds.size(), 0);
}

void Rows::takeCell(Statement &statement, int column)
{
    sqlite3_stmt *handle = statement.handle();
    const int type = sqlite3_column_type(handle, column);
    const ColumnKind kind = m_kinds[std::size_t(column)];
    if (type == SQLITE_NULL)
        return put(Tag::Null, 0);
    const bool isTemporal = kind == ColumnKind::Date || kind == ColumnKind::Time;
    if (type == SQLITE_INTEGER && !isTemporal)
        return put(Tag::Integer, std::bit_cast<std::uint64_t>(qint64(sqlite3_column_int64(handle, column))));
    if (type == SQLITE_FLOAT && !isTemporal)
        return put(Tag::Double, std::bit_cast<std::uint64_t>(sqlite3_column_double(handle, column)));
    const std::string_view bytes = bytesOf(handle, column, type);
    if (kind == ColumnKind::Date)
        if (const auto date = readIsoDate(bytes))
            return put(Tag::Date, std::bit_cast<std::uint64_t>(date->toJulianDay()));
    if (kind == ColumnKind::Time)
        if (const auto time = readIsoTime(bytes))
            return put(Tag::Time, std::uint64_t(time->msecsSinceStartOfDay()));
    putText(bytes, column);
}

void Rows::put(Tag tag, std::uint64_t cell)
{
    m_cells.push_back(cell);
    m_tags.push_back(tag);
}

void Rows::putText(std::string_view text, int column)
{
    std::uint64_t &last = m_lastTexts[std::size_t(column)];
    const std::string_view before = std::string_view(m_texts).substr(last >> 32, last & 0xffffffffu);
    if (before != text) {
        if (m_texts.size() + text.size() > std::numeric_limits<std::uint32_t>::max())
            throw RuntimeFailure(Failure::OutOfMemory,
                                 QStringLiteral("A query gives more than four gigabytes of text."));
        last = pack(m_texts.size(), text.size());
        m_texts.append(text);
    }
    put(Tag::Text, last);
}

int Rows::column(const QString &name) const
{
    for (int c = 0; c < columns(); ++c)
        if (m_names[c].compare(name, Qt::CaseInsensitive) == 0)
            return c;
    return -1;
}

Value Rows::value(qsizetype row, int column) const
{
    const std::uint64_t cell = m_cells[at(row, column)];
    switch (tag(row, column)) {
    case Tag::Null: break;
    case Tag::Integer: return Value(std::bit_cast<qint64>(cell));
    case Tag::Double: return Value(std::bit_cast<double>(cell));
    case Tag::Date: return Value(QDate::fromJulianDay(std::bit_cast<qint64>(cell)));
    case Tag::Time: return Value(QTime::fromMSecsSinceStartOfDay(int(cell)));
    case Tag::Text: {
        const std::string_view bytes = utf8(row, column);
        return Value(QString::fromUtf8(bytes.data(), qsizetype(bytes.size())));
    }
    }
    return {};
}

double Rows::number(qsizetype row, int column) const
{
    const std::uint64_t cell = m_cells[at(row, column)];
    switch (tag(row, column)) {
    case Tag::Integer: return double(std::bit_cast<qint64>(cell));
    case Tag::Double: return std::bit_cast<double>(cell);
    default: return 0;
    }
}

QDate Rows::date(qsizetype row, int column) const
{
    if (tag(row, column) != Tag::Date)
        return {};
    return QDate::fromJulianDay(std::bit_cast<qint64>(m_cells[at(row, column)]));
}

QTime Rows::time(qsizetype row, int column) const
{
    if (tag(row, column) != Tag::Time)
        return {};
    return QTime::fromMSecsSinceStartOfDay(int(m_cells[at(row, column)]));
}

std::string_view Rows::utf8(qsizetype row, int column) const
{
    if (tag(row, column) != Tag::Text)
        return {};
    const std::uint64_t cell = m_cells[at(row, column)];
    return std::string_view(m_texts).substr(cell >> 32, cell & 0xffffffffu);
}
