// The files that the keeper's data are exported to and imported from: which table each file holds, and for each column
// its name in the header, its place in the store, what a row without it starts with, and the rule of the entry window
// for its values. Export and import go by these tables alone, so that what one writes the other reads.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include <QDateTime>

#include "logic/logbook/EntryRules.h"
#include "store/Value.h"

struct Globals;

enum class CellKind {
    TankName, ///< of the row itself
    Tank,     ///< of an entry: a tank's name in the file, its identity in the store
    Line,     ///< a text without line breaks
    Notes,    ///< any text
    Number,
    Whole,     ///< of 16 bits
    Date,      ///< any day
    EntryDate, ///< a day that an entry window can show
    Time,
    WaterType, ///< a word in the file, a digit in the store
    Pattern,   ///< the same of a reminder
    Detail,    ///< of a reminder: see ReminderDetail.h
};

struct DataColumn
{
    QString name;   ///< in the header; lower case
    QString stored; ///< the column of the table
    CellKind kind;
    Value start = {};     ///< in a row of a file that lacks the column
    QString ifEmpty = {}; ///< what is said of an empty value; empty if the row may have none
    std::function<Complaint(const QString &)> complaint = {}; ///< of the entry window; may be null
    bool isKey = false;                                       ///< one of those that identify the row

    /// A file must have the column.
    bool isNeeded() const { return !ifEmpty.isEmpty() && start.isNull(); }
};

struct DataTable
{
    QString file;   ///< such as "water.csv"
    QString table;  ///< in the store
    QString entry;  ///< what a row is, such as "water test"
    QString column; ///< that holds the tankid of the entry's tank; empty if the rows are no entries of tanks
    std::vector<DataColumn> columns = {};
    bool isReminders = false;

    bool isTanks() const { return columns.front().kind == CellKind::TankName; }
    /// The place of the column of that name, whose case does not matter; -1 if there is none.
    int find(const QString &name) const;
};

/// The five tables: tanks, the three logs, reminders. The keeper's options must have been read (ReadOptions); `now` is
/// the date and time that new entries start with.
std::vector<DataTable> DataTables(const Globals &g, const QDateTime &now);

/// The word for a stored value of a kind that has words, and back; empty if there is none. A stored value is its own
/// word too.
QString WordOf(CellKind kind, const Value &stored);
Value OfWord(CellKind kind, const QString &word);
/// All words of that kind.
QStringList Words(CellKind kind);
