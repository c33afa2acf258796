#include "store/RowStream.h"

#include "platform/core/RuntimeFailure.h"
#include "store/Connection.h"

RowStream::RowStream(std::shared_ptr<Connection> connection, const QString &sql, const std::vector<Value> &parameters) :
    m_statement(std::make_unique<Statement>(std::move(connection), sql, QStringLiteral("Reading from the database.")))
{
    m_statement->bind(parameters);
    m_hasRow = m_row.readNext(*m_statement);
}

RowStream::~RowStream() = default;

void RowStream::MoveNext()
{
    if (!m_hasRow)
        throw RuntimeFailure(Failure::NoCurrentRecord);
    m_hasRow = m_row.readNext(*m_statement);
    if (!m_hasRow)
        m_statement.reset(); // releases the lock on the file
}

Value RowStream::value(const QString &name) const
{
    const int column = m_row.column(name);
    if (column < 0)
        throw RuntimeFailure(Failure::NoSuchColumn, QStringLiteral("There is no column \"%1\".").arg(name));
    if (!m_hasRow)
        throw RuntimeFailure(Failure::NoCurrentRecord);
    return m_row.value(0, column);
}
