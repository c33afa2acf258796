// Copies a file of the old engine, table by table and row by row, into a new database of the same version. The case of
// the names of tables and columns does not matter. A file without a table or column of its version is refused; tables
// and columns that Ostrelmark does not have are left out and reported. It reads an OldSource, so that nothing
// here depends on the library for such files.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include "oldengine/OldOutcome.h"
#include "oldengine/OldValues.h"

struct OldColumn
{
    QString name;
    OldType type = OldType::Text;
    int scale = 0; ///< decimals of a Decimal
};

struct OldTable
{
    QString name;
    std::vector<OldColumn> columns; ///< empty if the table's description cannot be read
    qint64 rows = 0;                ///< the number that the file gives
};

struct OldCell
{
    enum class State { Null, Present, Unreadable } state = State::Null;
    QByteArrayView bytes; ///< a Boolean has one byte
};

class OldSource
{
public:
    virtual ~OldSource() = default;
    virtual int codePage() const = 0; ///< see OldTextReader
    virtual const std::vector<OldTable> &tables() const = 0;
    /// Calls `take` for each row that is not deleted, with one cell for each column. Returns how many rows could not be
    /// read, as far as this is known.
    virtual qint64 readRows(const OldTable &table, const std::function<void(std::span<const OldCell>)> &take) = 0;
};

/// Fills the draft, which must be an empty file, checks it, and syncs it to the disk. Calls `progress` at least once in
/// a few hundred rows. Throws a RuntimeFailure whose text says what is missing or what failed.
OldOutcome CopyOldDatabase(OldSource &source, const QString &draft,
                           const std::function<void(const OldProgress &)> &progress);
