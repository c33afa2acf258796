// The rows of a SELECT, read one at a time and not kept, so that a report of any length needs little memory. Other
// programs cannot write to the database until the last row has been read or the stream is destroyed.
#pragma once

#include <memory>
#include <vector>

#include <QString>

#include "store/Rows.h"

class Connection;

class RowStream
{
public:
    ~RowStream();
    bool EOF_() const { return !m_hasRow; }
    /// Throws NoCurrentRecord past the end.
    void MoveNext();
    /// The current row, as row 0, for direct access by the numbers of the columns; it is valid until MoveNext.
    const Rows &row() const { return m_row; }
    /// A value of the current row; the case of the name does not matter. Throws NoSuchColumn, and NoCurrentRecord after
    /// the last row.
    Value value(const QString &name) const;
    QString text(const QString &name) const { return value(name).text(); }

private:
    friend class Database;
    RowStream(std::shared_ptr<Connection> connection, const QString &sql, const std::vector<Value> &parameters);

    std::unique_ptr<Statement> m_statement;
    Rows m_row; ///< only the current row
    bool m_hasRow = false;
};
