// The packed rows of a result: eight bytes and a tag per cell, texts in one arena. A hundred thousand rows are read
// without an allocation for each, and a list can keep them and show them directly. A cell that does not fit its
// column's declared type (a text in a number column, an impossible date) is kept as the text that was found. The store
// creates the rows; they never change afterwards.
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

/// The declared type of a column. None is a column of a query that does not come from a table.
enum class ColumnKind : std::uint8_t { None, Boolean, Integer, Double, Date, Time, Text };

class Rows
{
public:
    /// Reads all rows of a statement that is ready to run. With `rowids`, the numbers of the statement's last column go
    /// there and not into the rows.
    static Rows read(Statement &statement, std::vector<qint64> *rowids = nullptr);
    /// Replaces the contents by the next row. Returns false, and holds no row, at the end.
    bool readNext(Statement &statement);
    /// Reads only the columns of a statement.
    static Rows describe(Statement &statement);

    qsizetype count() const { return m_names.isEmpty() ? 0 : qsizetype(m_tags.size()) / m_names.size(); }
    int columns() const { return int(m_names.size()); }
    const QStringList &names() const { return m_names; }
    ColumnKind kind(int column) const { return m_kinds[std::size_t(column)]; }
    /// The column of that name, whose case does not matter; -1 if there is none.
    int column(const QString &name) const;

    bool isNull(qsizetype row, int column) const { return tag(row, column) == Tag::Null; }
    Value value(qsizetype row, int column) const;
    /// Direct access without a Value. The result is 0 or empty for Null and for a value of another type. These
    /// functions do not throw.
    double number(qsizetype row, int column) const;
    QString text(qsizetype row, int column) const { return value(row, column).text(); }
    QDate date(qsizetype row, int column) const;
    QTime time(qsizetype row, int column) const;
    /// The UTF-8 bytes of a text, valid as long as the rows; empty if the cell is not a text.
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
    std::vector<std::uint64_t> m_lastTexts; // for each column: a text equal to that of the previous row is stored once
};

/// The kind of column for a declared type such as "VARCHAR(50)", "DATE TEXT" or "SMALLINT"; None for nothing.
ColumnKind kindOfDeclaration(std::string_view declared);
