// The CSV files of the keeper's data: which table each file holds, and for each column its name in the header, its
// place in the store, its initial value in a file without the column, and the rule of the entry window for its values.
// Export and import both use these tables, so that each reads what the other wrote.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include <QDateTime>

#include "logic/logbook/EntryRules.h"
#include "store/Value.h"

struct Globals;

enum class CellKind {
    TankName, ///< the name of the tank that the row describes
    Tank,     ///< the tank of an entry: its name in the file, its tankid in the store
    Line,     ///< a text without line breaks
    Notes,    ///< any text
    Number,
    Whole,     ///< a whole number of 16 bits
    Date,      ///< any day
    EntryDate, ///< a day that an entry window can show
    Time,
    WaterType, ///< a word in the file, a digit in the store
    Pattern,   ///< of a reminder: likewise
    Detail,    ///< of a reminder: see ReminderDetail.h
};

struct DataColumn
{
    QString name;   ///< in the header; lower case
    QString stored; ///< the column of the table
    CellKind kind;
    Value start = {};     ///< the value if the file lacks the column
    QString ifEmpty = {}; ///< the message for an empty value; empty if the value may be empty
    std::function<Complaint(const QString &)> complaint = {}; ///< the rule of the entry window; may be null
    bool isKey = false;                                       ///< part of the key that identifies the row

    /// Whether a file must have the column.
    bool isNeeded() const { return !ifEmpty.isEmpty() && start.isNull(); }
};

struct DataTable
{
    QString file;   ///< such as "water.csv"
    QString table;  ///< its name in the store
    QString entry;  ///< what a row is, such as "water test"
    QString column; ///< the column with the tankid of the entry's tank; empty if the rows are not entries of tanks
    std::vector<DataColumn> columns = {};
    bool isReminders = false;

    bool isTanks() const { return columns.front().kind == CellKind::TankName; }
    /// The place of the column of that name, whose case does not matter; -1 if there is none.
    int find(const QString &name) const;
};

/// The five tables: tanks, the three logs, reminders. ReadOptions must have been called; `now` is the initial date and
/// time of new entries.
std::vector<DataTable> DataTables(const Globals &g, const QDateTime &now);

/// Convert a stored value of a kind that has words to its word and back; empty if there is none. OfWord also accepts
/// the stored value itself.
QString WordOf(CellKind kind, const Value &stored);
Value OfWord(CellKind kind, const QString &word);
/// All words of that kind.
QStringList Words(CellKind kind);
