// The rows of a result, packed: eight bytes and a tag a cell, texts in one arena. A hundred thousand rows are read
// without an allocation each, and a list can keep and show them as they are. A cell that does not fit its column's
// declared type (a text in a number column, a date that does not exist) is kept as the text that was found. Made by the
// store, never changed afterwards.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <QDate>
#include <QString>
#include <QStringList>
#include <QTime>

#include "store/Value.h"

class Statement;

/// What a column is declared to hold; None is a column of a query that is no column of a table.
enum class ColumnKind : std::uint8_t { None, Boolean, Integer, Double, Date, Time, Text };

class Rows
{
public:
    /// Takes all rows of a statement that is ready to run. With `rowids` the statement's last column is no column of
    /// the rows: its numbers go there.
    static Rows read(Statement &statement, std::vector<qint64> *rowids = nullptr);
    /// Takes the next row alone, in the place of what was there; false, and no row, at the end.
    bool readNext(Statement &statement);
    /// The columns of a statement and no rows.
    static Rows describe(Statement &statement);

    qsizetype count() const { return m_names.isEmpty() ? 0 : qsizetype(m_tags.size()) / m_names.size(); }
    int columns() const { return int(m_names.size()); }
    const QStringList &names() const { return m_names; }
    ColumnKind kind(int column) const { return m_kinds[std::size_t(column)]; }
    /// Column of that name, in any case of letters; -1 if there is none.
    int column(const QString &name) const;

    bool isNull(qsizetype row, int column) const { return tag(row, column) == Tag::Null; }
    Value value(qsizetype row, int column) const;
    /// Without a Value between: 0 and empty for Null and for what does not fit. They do not throw.
    double number(qsizetype row, int column) const;
    QString text(qsizetype row, int column) const { return value(row, column).text(); }
    QDate date(qsizetype row, int column) const;
    QTime time(qsizetype row, int column) const;
    /// The bytes of a text as they are kept, UTF-8, valid as long as the rows; empty where the cell is no text.
    std::string_view utf8(qsizetype row, int column) const;

private:
    enum class Tag : std::uint8_t { Null, Integer, Double, Text, Date, Time };

    std::size_t at(qsizetype row, int column) const { return std::size_t(row * m_names.size() + column); }
    Tag tag(qsizetype row, int column) const { return m_tags[at(row, column)]; }
    void takeColumns(Statement &statement, int count);
    void takeCell(Statement &statement, int column);
    void put(Tag tag, std::uint64_t cell);
    void putText(std::string_view text, int column);

    QStringList m_names;
    std::vector<ColumnKind> m_kinds;
    std::vector<std::uint64_t>
        m_cells; // a number, days of a Julian day, milliseconds, or offset << 32 | length of a text
    std::vector<Tag> m_tags;
    std::string m_texts;
    std::vector<std::uint64_t> m_lastTexts; // of each column: a text like that of the row before is kept once
};

/// The kind of a declared type such as "VARCHAR(50)", "DATE TEXT" or "SMALLINT"; None for nothing.
ColumnKind kindOfDeclaration(std::string_view declared);
