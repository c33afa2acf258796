// The database file and its connection. A file that is foreign, locked, read-only, missing or damaged is refused with a
// RuntimeFailure of its own and is not changed. The store shows nothing: windows turn failures into boxes.
#pragma once

#include <functional>
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
    int Size = 0; ///< characters of a text; 0 means unlimited
};

class Connection; // internal to the store: the SQLite handle
class DailyCopies;

class Database
{
public:
    enum class Access { Shared, Exclusive };

    /// Opens an existing database file; the case of its name does not matter. Throws RuntimeFailure: CouldNotFindFile,
    /// UnrecognizedFormat (foreign or damaged), PermissionDenied (read-only, or locked by another program).
    static std::unique_ptr<Database> OpenDatabase(const QString &fileName, Access access = Access::Shared);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// How many milliseconds databases opened from now on wait for another program's lock. The default is 5000.
    static void setBusyTimeout(int milliseconds);

    /// Runs a SELECT with its values bound to its "?", in order. The recordset is for reading, and its first row is the
    /// current one. A list that a person sees needs "ORDER BY tankname COLLATE CASEBLIND". Throws SyntaxError if the
    /// statement is wrong.
    Recordset OpenRecordset(const QString &sql, const Parameters &parameters = {});
    /// Rows of a table that can be changed and deleted, and to which rows can be added. `which` follows the name of the
    /// table: "WHERE ... ORDER BY ...". Throws as OpenRecordset and Fields do.
    Recordset OpenForUpdate(const QString &table, const QString &which = {}, const Parameters &parameters = {});
    /// Runs a SELECT whose rows are read one at a time and not kept.
    RowStream OpenForwardOnly(const QString &sql, const Parameters &parameters = {});
    /// A recordset of a table, for AddNew only; it reads no rows.
    Recordset OpenForAppend(const QString &table);
    /// Runs a statement that changes rows and returns how many it changed.
    int Execute(const QString &sql, const Parameters &parameters = {});

    /// Names of the tables.
    QStringList TableDefs();
    /// Columns of a table; the case of its name does not matter. Throws NoSuchColumn if there is no such table, as does
    /// Append().
    std::vector<FieldDef> Fields(const QString &table);
    /// Adds a column to a table; it is Null in every row. A text of size 0 gets the default size of 255.
    void Append(const QString &table, const FieldDef &field);

    /// From now on, also after LetGo(), makes a copy of the file before the first change of each day (see Copies.h).
    /// `failed` gets a sentence for the keeper, at most once a day, if a copy could not be made.
    void KeepDailyCopies(std::function<void(const QString &)> failed);
    /// Makes the copy of the day now, for a change that does not go through this object.
    void AboutToChange();

    /// Closes the file while other code works on it; recordsets lapse. The next use opens it again. If that fails, it
    /// throws as OpenDatabase does, and the use after that tries again.
    void LetGo();
    /// Opens it again at once.
    void OpenAgain();
    /// Rolls back an open transaction and closes the file. Every later use throws ObjectNotSet. The destructor closes
    /// as well.
    void Close();
    bool isOpen() const { return m_connection != nullptr; }
    /// Absolute path of the file; still valid after Close().
    QString fileName() const { return m_fileName; }

    /// A transaction that rolls back when it goes out of scope without commit(). Transactions do not nest.
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
    void connect(const QString &fileName);
    /// The open connection; opens the file again after LetGo().
    std::shared_ptr<Connection> connection();
    QString tableName(const QString &table);
    Recordset open(const QString &sql, const Parameters &parameters, const QString &table);
    void watchChanges();

    std::shared_ptr<Connection> m_connection;
    QString m_fileName;
    Access m_access = Access::Shared;
    bool m_opensAgain = false;             ///< after LetGo(): the next use opens the file
    std::shared_ptr<DailyCopies> m_copies; ///< null if no copies are made
};
