// Inside of the store: the SQLite handle and a statement on it, each freed by its owner, each error of the engine
// turned into a RuntimeFailure here and nowhere else. Recordsets and transactions share the connection; after close()
// every use of it throws ObjectNotSet. sqlite3.h itself is for .cpp files.
#pragma once

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
    /// Opens that very file; creates none. Nothing is read yet.
    explicit Connection(const QString &path);
    ~Connection();
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    bool isOpen() const { return m_handle != nullptr; }
    /// Rolls back what is open, and lets the file go.
    void close() noexcept;
    /// Throws ObjectNotSet when closed.
    sqlite3 *handle() const;

    /// Runs statements without values. `doing` is what a failure says was being done.
    void run(const char *sql, const QString &doing);
    void rollBack() noexcept;
    bool inTransaction() const;

    /// Throws what stands for a result code of the engine, with its message and what was being done.
    [[noreturn]] void fail(int code, const QString &doing) const;

    /// Milliseconds to wait for another program's lock before it counts as held; for connections opened from now on.
    static int busyTimeout;

private:
    friend class Statement;
    sqlite3_stmt *take(const QByteArray &sql);
    void keep(const QByteArray &sql, sqlite3_stmt *statement);

    sqlite3 *m_handle = nullptr;
    QByteArray m_keptSql; // the statement that was run last, so that many rows in a row are written with one
    sqlite3_stmt *m_kept = nullptr;
};

/// One statement, its values bound by copy.
class Statement
{
public:
    enum class Use { Once, Again };

    /// Throws SyntaxError where the text is not exactly one statement. Again: kept for the next time the same text is
    /// run.
    Statement(std::shared_ptr<Connection> connection, const QString &sql, const QString &doing, Use use = Use::Once);
    ~Statement();
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    /// Binds the values to the "?" in order; throws SyntaxError if there are more or less.
    void bind(const std::vector<Value> &values);
    /// True while there is a row.
    bool step();
    /// Runs to the end; returns how many rows it changed.
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

/// An identifier in double quotes, whatever it holds.
QString quoted(const QString &identifier);
