// Internal to the store: the SQLite handle and its statements, each freed by its owner. This is the only place where
// errors of the engine become RuntimeFailures. Recordsets and transactions share the connection; after close() every
// use of it throws ObjectNotSet. Only .cpp files include sqlite3.h.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QByteArray>
#include <QString>

#include "store/Value.h"

struct sqlite3;
struct sqlite3_stmt;

class Connection
{
public:
    /// Opens an existing file with exactly this name. Nothing is read yet.
    explicit Connection(const QString &path);
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    bool isOpen() const { return m_handle != nullptr; }
    /// Rolls back an open transaction and closes the file.
    void close() noexcept;
    /// Throws ObjectNotSet when closed.
    sqlite3 *handle() const;

    /// Runs statements without parameters. `doing` describes the operation in the text of a failure.
    void run(const char *sql, const QString &doing);
    void rollBack() noexcept;
    bool inTransaction() const;

    /// Called by aboutToChange().
    std::function<void()> beforeChange;
    /// Must be called before each change. Within a transaction it does nothing, because it was called at its start.
    void aboutToChange()
    {
        if (beforeChange && !inTransaction())
            beforeChange();
    }

    /// Throws the RuntimeFailure for a result code of the engine, with the engine's message and `doing`.
    [[noreturn]] void fail(int code, const QString &doing) const;

    /// How many milliseconds connections opened from now on wait for another program's lock.
    static int busyTimeout;

private:
    friend class Statement;
    sqlite3_stmt *take(const QByteArray &sql);
    void keep(const QByteArray &sql, sqlite3_stmt *statement);

    sqlite3 *m_handle = nullptr;
    QByteArray m_keptSql; // the statement that was run last; writing many rows prepares it only once
    sqlite3_stmt *m_kept = nullptr;
};

/// One statement. Bound values are copied.
class Statement
{
public:
    enum class Use { Once, Again };

    /// Throws SyntaxError if the text is not exactly one statement. `Again` keeps the prepared statement for the next
    /// run of the same text.
    Statement(std::shared_ptr<Connection> connection, const QString &sql, const QString &doing, Use use = Use::Once);
    ~Statement();
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    /// Binds the values to the "?" in order; throws SyntaxError if their numbers differ.
    void bind(const std::vector<Value> &values);
    /// True while there is a row.
    bool step();
    /// Runs the statement to its end and returns how many rows it changed.
    int run();

    sqlite3_stmt *handle() const { return m_statement; }
    int columnCount() const;

private:
    void bindOne(int index, const Value &value);

    std::shared_ptr<Connection> m_connection;
    QByteArray m_sql;
    QString m_doing;
    Use m_use;
    sqlite3_stmt *m_statement = nullptr;
};

/// An identifier in double quotes, with quotation marks inside it escaped.
QString quoted(const QString &identifier);
