#include "store/Connection.h"

#include <QFile>
#include <sqlite3.h>

#include "platform/core/RuntimeFailure.h"
#include "store/Collation.h"
#include "store/Iso.h"

namespace {

struct FailureOfCode
{
    int code; ///< an extended result code, or a primary one that covers all its extended codes
    Failure failure;
    const char *hint;
};

// Extended codes come before their primary code, because the first match counts.
constexpr FailureOfCode failures[] = {
    {SQLITE_CONSTRAINT_UNIQUE, Failure::DuplicateKey, ""},
    {SQLITE_CONSTRAINT_PRIMARYKEY, Failure::DuplicateKey, ""},
    {SQLITE_CONSTRAINT_NOTNULL, Failure::InvalidUseOfNull, ""},
    {SQLITE_CONSTRAINT, Failure::DataTypeConversion, ""},
    {SQLITE_FULL, Failure::DiskFull, "Make room on the disk and try again."},
    {SQLITE_READONLY_DBMOVED, Failure::CouldNotFindFile,
     "The file of the database was moved or deleted while the program ran. Put it back and try again."},
    {SQLITE_READONLY, Failure::PermissionDenied, "The database is read-only."},
    {SQLITE_PERM, Failure::PermissionDenied, "The database may not be used by this user."},
    {SQLITE_AUTH, Failure::PermissionDenied, ""},
    {SQLITE_BUSY, Failure::PermissionDenied, "Another program holds the database. Close that program and try again."},
    {SQLITE_LOCKED, Failure::PermissionDenied, "Another program holds the database. Close that program and try again."},
    {SQLITE_PROTOCOL, Failure::PermissionDenied, "The database could not be locked."},
    {SQLITE_CORRUPT, Failure::UnrecognizedFormat, "The database is damaged. Put a backup copy in its place."},
    {SQLITE_NOTADB, Failure::UnrecognizedFormat, "The file is no database of this program, or it is damaged."},
    {SQLITE_CANTOPEN, Failure::CouldNotFindFile, ""},
    {SQLITE_IOERR_NOMEM, Failure::OutOfMemory, ""},
    {SQLITE_IOERR, Failure::DeviceError, "The disk could not be read or written."},
    {SQLITE_NOMEM, Failure::OutOfMemory, ""},
    {SQLITE_TOOBIG, Failure::DataTypeConversion, ""},
    {SQLITE_MISMATCH, Failure::DataTypeConversion, ""},
    {SQLITE_ERROR, Failure::SyntaxError, ""},
    {SQLITE_RANGE, Failure::SyntaxError, ""},
    {SQLITE_SCHEMA, Failure::SyntaxError, ""},
};

constexpr int primary(int code) { return code & 0xff; }

bool isBlankOrEnd(const char *text) { return QByteArrayView(text).trimmed().isEmpty(); }

} // namespace

int Connection::busyTimeout = 5000;

Connection::Connection(const QString &path)
{
    const QString doing = QStringLiteral("Opening the database:\n%1").arg(path);
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE;
    int code = sqlite3_open_v2(QFile::encodeName(path).constData(), &m_handle, flags, nullptr);
    if (code == SQLITE_OK)
        code = sqlite3_busy_timeout(m_handle, busyTimeout);
    if (code == SQLITE_OK)
        code = registerCaseBlind(m_handle);
    if (code == SQLITE_OK)
        return;
    try {
        fail(code, doing);
    } catch (...) {
        close();
        throw;
    }
}

Connection::~Connection() { close(); }

void Connection::close() noexcept
{
    if (!m_handle)
        return;
    rollBack();
    sqlite3_finalize(m_kept);
    m_kept = nullptr;
    sqlite3_close_v2(std::exchange(m_handle, nullptr));
}

sqlite3 *Connection::handle() const
{
    if (!m_handle)
        throw RuntimeFailure(Failure::ObjectNotSet, QStringLiteral("The database is closed."));
    return m_handle;
}

void Connection::run(const char *sql, const QString &doing)
{
    const int code = sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        fail(code, doing);
}

void Connection::rollBack() noexcept
{
    if (m_handle && inTransaction())
        sqlite3_exec(m_handle, "ROLLBACK", nullptr, nullptr, nullptr);
}

bool Connection::inTransaction() const { return m_handle && !sqlite3_get_autocommit(m_handle); }

void Connection::fail(int code, const QString &doing) const
{
    QString words = doing;
    const bool isLast = m_handle && sqlite3_extended_errcode(m_handle) == code;
    words += QStringLiteral("\n(%1)").arg(QString::fromUtf8(isLast ? sqlite3_errmsg(m_handle) : sqlite3_errstr(code)));
    for (const FailureOfCode &row : failures) {
        if (row.code != code && row.code != primary(code))
            continue;
        if (*row.hint)
            words += u'\n' + QString::fromLatin1(row.hint);
        throw RuntimeFailure(row.failure, words);
    }
    throw RuntimeFailure(Failure::DeviceError, words);
}

sqlite3_stmt *Connection::take(const QByteArray &sql)
{
    return sql == m_keptSql ? std::exchange(m_kept, nullptr) : nullptr;
}

void Connection::keep(const QByteArray &sql, sqlite3_stmt *statement)
{
    sqlite3_finalize(m_kept);
    m_keptSql = sql;
    m_kept = statement;
}

Statement::Statement(std::shared_ptr<Connection> connection, const QString &sql, const QString &doing, Use use) :
    m_connection(std::move(connection)), m_sql(sql.toUtf8()), m_doing(doing), m_use(use)
{
    sqlite3 *handle = m_connection->handle();
    m_statement = m_connection->take(m_sql);
    if (m_statement)
        return;
    const char *tail = nullptr;
    const int code = sqlite3_prepare_v2(handle, m_sql.constData(), int(m_sql.size() + 1), &m_statement, &tail);
    if (code != SQLITE_OK)
        m_connection->fail(code, m_doing + QStringLiteral("\nThe statement: ") + sql);
    if (!m_statement || !isBlankOrEnd(tail)) {
        sqlite3_finalize(m_statement);
        throw RuntimeFailure(Failure::SyntaxError, QStringLiteral("Exactly one statement is needed: ") + sql);
    }
}

Statement::~Statement()
{
    if (m_use == Use::Again && m_connection->isOpen()) {
        sqlite3_reset(m_statement);
        sqlite3_clear_bindings(m_statement);
        m_connection->keep(m_sql, m_statement);
    } else {
        sqlite3_finalize(m_statement);
    }
}

void Statement::bind(const std::vector<Value> &values)
{
    const int wanted = sqlite3_bind_parameter_count(m_statement);
    if (wanted != int(values.size()))
        throw RuntimeFailure(Failure::SyntaxError, QStringLiteral("The statement wants %1 values and got %2: %3")
                                                       .arg(wanted)
                                                       .arg(values.size())
                                                       .arg(QString::fromUtf8(m_sql)));
    for (int i = 0; i < wanted; ++i)
        bindOne(i + 1, values[std::size_t(i)]);
}

void Statement::bindOne(int index, const Value &value)
{
    const auto bindText = [&](const QByteArray &text) {
        return text.isNull() ? sqlite3_bind_null(m_statement, index)
                             : sqlite3_bind_text64(m_statement, index, text.constData(), sqlite3_uint64(text.size()),
                                                   SQLITE_TRANSIENT, SQLITE_UTF8);
    };
    int code = SQLITE_OK;
    if (value.isNull())
        code = sqlite3_bind_null(m_statement, index);
    else if (const auto *whole = std::get_if<qint64>(&value.variant()))
        code = sqlite3_bind_int64(m_statement, index, *whole);
    else if (const auto *number = std::get_if<double>(&value.variant()))
        code = sqlite3_bind_double(m_statement, index, *number);
    else if (const auto *date = std::get_if<QDate>(&value.variant()))
        code = bindText(isoText(*date));
    else if (const auto *time = std::get_if<QTime>(&value.variant()))
        code = bindText(isoText(*time));
    else if (const auto *text = std::get_if<QString>(&value.variant()))
        code = bindText(text->isEmpty() ? QByteArray("") : text->toUtf8());
    if (code != SQLITE_OK)
        m_connection->fail(code, m_doing);
}

bool Statement::step()
{
    const int code = sqlite3_step(m_statement);
    if (code == SQLITE_ROW)
        return true;
    if (code != SQLITE_DONE)
        m_connection->fail(code, m_doing);
    return false;
}

int Statement::run()
{
    if (!sqlite3_stmt_readonly(m_statement))
        m_connection->aboutToChange();
    const int before = sqlite3_total_changes(m_connection->handle());
    while (step()) {
    }
    return sqlite3_total_changes(m_connection->handle()) - before;
}

int Statement::columnCount() const { return sqlite3_column_count(m_statement); }

QString quoted(const QString &identifier)
{
    QString text = identifier;
    return u'"' + text.replace(u'"', QStringLiteral("\"\"")) + u'"';
}
