// The rows of one SELECT, read once, and a buffer for one row that is being added or changed. A recordset of "SELECT *
// FROM table [WHERE ...] [ORDER BY ...]" can be written: AddNew or Edit fills the buffer, the fields write into it, one
// Update writes one row in one transaction. The buffer lapses when the recordset moves or is opened again; a refused
// Update keeps it. A copy shares rows and state. After Database::Close or its own Close every use throws ObjectNotSet.
#pragma once

#include <memory>
#include <vector>

#include <QString>

#include "store/Rows.h"
#include "store/Value.h"

class Recordset;
struct RecordsetState; // inside of the store

/// A column of the current row, or of the buffer while a row is added or changed.
class Field
{
public:
    Value value() const;
    /// Writes into the buffer: the value becomes what the column holds. A text becomes a date (read month first), a
    /// time or a number where the column is one; throws DataTypeConversion if it is none, Overflow where a number is
    /// beyond the column (32 bits in a whole number). Null may go anywhere. Throws NoCurrentRecord without AddNew or
    /// Edit.
    void setValue(const Value &value);
    QString text() const { return value().text(); }

private:
    friend class Recordset;
    Field(std::shared_ptr<RecordsetState> state, int column) : m_state(std::move(state)), m_column(column) {}
    std::shared_ptr<RecordsetState> m_state;
    int m_column;
};

class Recordset
{
public:
    /// Without rows and not set: every use throws ObjectNotSet.
    Recordset();
    bool isSet() const;

    bool BOF() const;  ///< there is no row
    bool EOF_() const; ///< past the last row; "EOF" is a macro of the C library
    bool isEmpty() const { return BOF() && EOF_(); }
    /// How many of the rows read are still there; a row added is not among them.
    qsizetype RecordCount() const;
    /// Number of the current row from 0; -1 where there is none.
    qsizetype AbsolutePosition() const;
    void MoveFirst(); ///< throws NoCurrentRecord when empty, as the next one
    void MoveLast();
    void MoveNext(); ///< past the last row there is no current one; throws NoCurrentRecord when called there

    /// By name, in any case of letters. Throws NoSuchColumn, or NoCurrentRecord where there is neither a row nor a
    /// buffer.
    Field operator[](const QString &name);
    int columnIndex(const QString &name) const;
    /// The rows as they were read, to be kept by a list that shows them.
    std::shared_ptr<const Rows> rows() const;

    /// Starts a row of Nulls. Throws PermissionDenied where the query is none that can be written, as do the next
    /// three.
    void AddNew();
    void Edit(); ///< starts from the current row
    /// Writes the buffer. Throws DuplicateKey where a unique index refuses it, and keeps the buffer; the row written
    /// becomes the current one after Edit, the current row stays after AddNew. Throws NoCurrentRecord where the row of
    /// an Edit is gone.
    void Update();
    void Delete(); ///< deletes the current row; afterwards there is no current row until a move
    void CancelUpdate();
    bool isEditing() const;

    /// Makes the first row that meets the condition current, of those that were read; true if there is one, else there
    /// is no current row. The values are bound to the "?" of the condition.
    bool FindFirst(const QString &condition, const std::vector<Value> &parameters);
    void Close();

private:
    friend class Database;
    explicit Recordset(std::shared_ptr<RecordsetState> state);
    RecordsetState &state() const;
    RecordsetState &writable() const;

    std::shared_ptr<RecordsetState> m_state;
};
