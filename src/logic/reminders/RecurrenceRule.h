// A reminder as a value: a task, a pattern and the days between which it holds, as one row of MAINTSCHED keeps it. Rows
// of older files have Nulls where a column came later; they read as the pattern "every so many days". What the pattern
// needs besides its interval is packed into the detail text, whose form is known here alone. The walk (Occurrences.h)
// makes dates of a rule, the editor (RuleFields.h) composes one.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QDate>
#include <QString>
#include <QStringList>

#include "text/Dates.h"

class Database;
class Recordset;
class Rows;

enum class Pattern : qint16 { Daily, Weekly, Monthly, Yearly, Once };

/// Fields that a pattern does not need keep what an earlier pattern left in them; nobody reads them then.
struct RecurrenceRule
{
    QString TaskDescription;       ///< the key of the row
    QDate StartDate;               ///< invalid where the row has none, as the next
    QDate EndDate;                 ///< last day
    qint16 RecurrenceInterval = 1; ///< days, weeks or months between two dates; of a yearly date the day of the month
    qint16 RecurrenceType = 0;     ///< a Pattern
    qint16 RecurrenceSubtype = 0;  ///< daily 1: on weekdays; monthly and yearly 1: on a weekday of the month
    QString RecurrenceDetail;      ///< see the functions below
    QString EnglishDescription;    ///< the sentence; empty in a row of an older file

    bool is(Pattern pattern) const { return RecurrenceType == qint16(pattern); }
    bool operator==(const RecurrenceRule &) const = default;
};

/// What a new reminder starts from: every day, from today for two years.
RecurrenceRule NewRule(const QDate &today);

/// All rows of a query "SELECT * FROM maintsched", in order. Null and what does not fit its column read as an invalid
/// date, 0 and "". Throws NoSuchColumn.
std::vector<RecurrenceRule> ReadRules(const Rows &rows);
/// The current row. Throws NoCurrentRecord.
RecurrenceRule ReadRule(Recordset &row);
/// Into the buffer of a row that is being added or changed; columns of the older rule stay as they are.
void WriteRule(Recordset &row, const RecurrenceRule &rule);

// The detail text. Positions count from 0 in the lists below; -1 is no selection, and what cannot be read.

/// "First", "Second", "Third", "Forth", "Last".
const QStringList &OrdinalNames();
constexpr int lastOrdinal = 4;       ///< position of "Last"
const QStringList &WeekdayNames();   ///< "Sunday" to "Saturday"
const QStringList &FullMonthNames(); ///< "January" to "December"

/// Weekly: a "1" or "0" for each day from Sunday to Saturday.
using WeekDays = std::array<bool, 7>;
QString WeeklyDetail(const WeekDays &days);
WeekDays ReadWeeklyDetail(const QString &detail);

/// A weekday of the month, monthly "31" (the Forth Monday), yearly "1202" (the Second Tuesday of March). Of a monthly
/// rule the month is -1.
struct MonthWeekday
{
    int ordinal = -1; ///< 0 to 9; the lists have 0 to 4, and more than that counts as the last
    int weekday = -1; ///< 0 to 6
    int month = -1;
};
QString MonthlyDetail(int ordinal, int weekday);
QString YearlyDetail(int ordinal, int weekday, int month);
MonthWeekday ReadMonthWeekday(const QString &detail);

/// Yearly on a date: the position of the month, in plain decimal.
int ReadMonthDetail(const QString &detail);

/// A number as it goes into a column of 16 bits: the whole text, or what it begins with, rounded. Nothing where that
/// does not fit.
std::optional<qint16> ReadShort(const QString &text);

/// Once: the date, month first, here with its whole year, so that it is the same day in every order and century.
QString OnceDetail(const QDate &date);
/// What was typed may stand there instead, if it is a date month first. In rows of earlier versions it may stand in the
/// order in which it was typed: the user's order is tried next, and then the others.
std::optional<QDate> ReadOnceDetail(const QString &detail, DateOrder dateOrder);
/// Writes such dates month first, before the user leaves the order in which they are read, so that they remain the same
/// days in every other order. The caller has begun a transaction. Throws RuntimeFailure.
void KeepOnceDates(Database &database, DateOrder dateOrder);
