// The one database file and its connection. Refuses what is no database of ours, what is locked, read-only, missing or
// damaged, each with its own RuntimeFailure and without changing the file. The store shows nothing: windows turn
// failures into boxes.
#pragma once

#include <memory>
#include <vector>

#include <QString>
#include <QStringList>

#include "store/Recordset.h"
#include "store/RowStream.h"
#include "store/Value.h"

using Parameters = std::vector<Value>;

/// What kind of column a field is; the numbers are the traditional ones.
enum class FieldType { Boolean = 1, Integer = 3, Double = 7, Date = 8, Text = 10, Memo = 12, Time = 22 };

struct FieldDef
{
    QString Name;
    FieldType Type = FieldType::Text;
    int Size = 0; ///< characters of a text; 0 where not limited
};

class Connection; // inside of the store: the SQLite handle

class Database
{
public:
    enum class Access { Shared, Exclusive };

    /// Opens an existing database file, found whatever the case of its name. Throws RuntimeFailure: CouldNotFindFile,
    /// UnrecognizedFormat (foreign or damaged), PermissionDenied (read-only, or locked by another program).
    static std::unique_ptr<Database> OpenDatabase(const QString &fileName, Access access = Access::Shared);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// How long to wait for another program's lock before it counts as held, in milliseconds; 5000 where not set. For
    /// databases opened from now on.
    static void setBusyTimeout(int milliseconds);

    /// Runs a SELECT with its values bound to its "?", in order. The recordset stands on its first row. "SELECT * FROM
    /// table [WHERE
    /// ...] [ORDER BY ...]" of one table can be written, all else only read. For the order that a person sees there is
    /// the collation CASEBLIND: "ORDER BY tankname COLLATE CASEBLIND". Throws SyntaxError where the statement is wrong.
    Recordset OpenRecordset(const QString &sql, const Parameters &parameters = {});
    /// The same, one row after the other and none kept.
    RowStream OpenForwardOnly(const QString &sql, const Parameters &parameters = {});
    /// A recordset of a table for AddNew alone; reads no rows.
    Recordset OpenForAppend(const QString &table);
    /// Runs a statement that changes rows; returns how many.
    int Execute(const QString &sql, const Parameters &parameters = {});

    /// Names of the tables.
    QStringList TableDefs() const;
    /// Columns of a table, whose name is given in any case of letters. Throws NoSuchColumn if there is no such table,
    /// as Append().
    std::vector<FieldDef> Fields(const QString &table) const;
    /// Adds a column to a table, Null in every row. A text of size 0 gets the default size of 255.
    void Append(const QString &table, const FieldDef &field);

    /// Rolls back what is open and closes; every later use throws ObjectNotSet. The destructor does the same.
    void Close();
    bool isOpen() const { return m_connection != nullptr; }
    /// Absolute path of the file that was found; stays after Close().
    QString fileName() const { return m_fileName; }

    /// One transaction: rolls back when it goes out of scope without commit(). They do not nest.
    class Transaction
    {
    public:
        explicit Transaction(Database &database);
        ~Transaction();
        Transaction(const Transaction &) = delete;
        Transaction &operator=(const Transaction &) = delete;
        void commit();

    private:
        std::shared_ptr<Connection> m_connection;
    };

private:
    Database() = default;
    std::shared_ptr<Connection> connection() const;
    QString tableName(const QString &table) const;

    std::shared_ptr<Connection> m_connection;
    QString m_fileName;
};
