// Copies a file of the old engine, table by table and row by row, into a new database of the same version. Tables and
// columns are matched whatever the case of their names; what that version needs and the file has not is refused, what
// it does not know is left out and told. Plain logic: the file is an OldSource, which the tests write by hand.
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
    std::vector<OldColumn> columns; ///< empty where the table's description cannot be read
    qint64 rows = 0;                ///< as the file counts them
};

struct OldCell
{
    enum class State { Null, Present, Unreadable } state = State::Null;
    QByteArrayView bytes; ///< of a Boolean one byte
};

class OldSource
{
public:
    virtual ~OldSource() = default;
    virtual int codePage() const = 0; ///< as OldTextReader wants it
    virtual const std::vector<OldTable> &tables() const = 0;
    /// Calls `take` with the cells of each row that is not deleted, one a column. Returns how many rows could not be
    /// read, as far as it knows.
    virtual qint64 readRows(const OldTable &table, const std::function<void(std::span<const OldCell>)> &take) = 0;
};

/// Fills the draft, an empty file, and checks it; then it is on the disk. `progress` is called now and then, at least
/// once a few hundred rows. Throws RuntimeFailure, with words that say what is missing or failed.
OldOutcome CopyOldDatabase(OldSource &source, const QString &draft,
                           const std::function<void(const OldProgress &)> &progress);
