// The rows of a SELECT one after the other, forward only, of which none is kept: for reports as long as they like. The
// database cannot be written by other programs until the last row was read or the stream is gone.
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
    /// Of the current row, by name in any case of letters. Throws NoSuchColumn, and NoCurrentRecord past the end.
    Value value(const QString &name) const;
    QString text(const QString &name) const { return value(name).text(); }

private:
    friend class Database;
    RowStream(std::shared_ptr<Connection> connection, const QString &sql, const std::vector<Value> &parameters);

    std::unique_ptr<Statement> m_statement;
    Rows m_row; ///< the current one alone
    bool m_hasRow = false;
};
