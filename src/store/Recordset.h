// The rows of one SELECT, read once, and a buffer for one row that is being added or changed. A recordset that was
// opened for update can be written: AddNew or Edit fills the buffer, the fields write into it, and one Update writes
// one row in one transaction. The buffer lapses when the recordset moves or is opened again; a refused Update keeps it.
// A copy shares rows and state. After Database::Close or its own Close every use throws ObjectNotSet.
#pragma once

#include <memory>
#include <vector>

#include <QString>

#include "store/Rows.h"
#include "store/Value.h"

class Recordset;
struct RecordsetState; // internal to the store

/// A column of the current row, or of the buffer while a row is added or changed.
class Field
{
public:
    Value value() const;
    /// Writes into the buffer, converted to the column's type: for a column of dates, times or numbers, a text is read
    /// as one (a date month first). Throws DataTypeConversion if the text is not one, Overflow if a number does not fit
    /// into the column (32 bits in a column of whole numbers), and NoCurrentRecord without AddNew or Edit. Null is
    /// always accepted.
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
    /// Not set: every use throws ObjectNotSet.
    Recordset();

    bool BOF() const;  ///< there is no row
    bool EOF_() const; ///< past the last row; "EOF" is a macro of the C library
    bool isEmpty() const { return BOF() && EOF_(); }
    /// How many of the rows that were read still exist. Added rows do not count.
    qsizetype RecordCount() const;
    /// Number of the current row, from 0; -1 if there is none.
    qsizetype AbsolutePosition() const;
    void MoveFirst(); ///< throws NoCurrentRecord if there are no rows
    void MoveNext();  ///< after the last row there is no current row; another call then throws NoCurrentRecord

    /// The column of that name; its case does not matter. Throws NoSuchColumn, or NoCurrentRecord if there is neither a
    /// row nor a buffer.
    Field operator[](const QString &name);
    int columnIndex(const QString &name) const;
    /// The rows as they were read; a list that shows them may keep them.
    std::shared_ptr<const Rows> rows() const;

    /// Starts a row of Nulls. Throws PermissionDenied if the recordset was opened for reading, as do the next three.
    void AddNew();
    void Edit(); ///< starts from the current row
    /// Writes the buffer. Throws DuplicateKey if a unique index refuses it, and keeps the buffer. After Edit the
    /// written row is current; after AddNew the current row has not changed. Throws NoCurrentRecord if the edited row
    /// no longer exists.
    void Update();
    void Delete(); ///< deletes the current row; afterwards there is no current row until a move

    /// Moves to the first of the rows read that meets the condition, and returns whether there is one; otherwise there
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
