// A reminder as a value: a task, a pattern, and its first and last day, as stored in one row of MAINTSCHED. In rows of
// older files, columns that were added later are Null; such a row is read as a daily pattern. Whatever a pattern needs
// besides its interval is packed into the detail text, and only this file knows the form of that text. Occurrences.h
// works out the dates of a rule, and RuleFields.h is the logic of the editor.
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

/// Fields that a pattern does not need keep the values of an earlier pattern and are not read.
struct RecurrenceRule
{
    QString TaskDescription;       ///< the key of the row
    QDate StartDate;               ///< invalid if the row has none
    QDate EndDate;                 ///< the last day; invalid if the row has none
    qint16 RecurrenceInterval = 1; ///< days, weeks or months between two dates; for a yearly date, the day of the month
    qint16 RecurrenceType = 0;     ///< a Pattern
    qint16 RecurrenceSubtype = 0;  ///< daily 1: on weekdays; monthly and yearly 1: on a weekday of the month
    QString RecurrenceDetail;      ///< see the functions below
    QString EnglishDescription;    ///< the sentence; empty in a row of an older file

    bool is(Pattern pattern) const { return RecurrenceType == qint16(pattern); }
    bool operator==(const RecurrenceRule &) const = default;
};

/// The start values of a new reminder: every day, from today for two years.
RecurrenceRule NewRule(const QDate &today);

/// All rows of a query "SELECT * FROM maintsched", in order. A Null, or a value that does not fit its column, is read
/// as an invalid date, as 0 or as "". Throws NoSuchColumn.
std::vector<RecurrenceRule> ReadRules(const Rows &rows);
/// The current row. Throws NoCurrentRecord.
RecurrenceRule ReadRule(Recordset &row);
/// Writes the rule into a row for which AddNew or Edit was called. Columns that are no longer used do not change.
void WriteRule(Recordset &row, const RecurrenceRule &rule);

// The detail text. A position counts from 0 in the lists below; -1 means that nothing is selected or that the text
// cannot be read.

/// "First", "Second", "Third", "Forth", "Last".
const QStringList &OrdinalNames();
constexpr int lastOrdinal = 4;       ///< position of "Last"
const QStringList &WeekdayNames();   ///< "Sunday" to "Saturday"
const QStringList &FullMonthNames(); ///< "January" to "December"

/// Weekly: a "1" or "0" for each day from Sunday to Saturday.
using WeekDays = std::array<bool, 7>;
QString WeeklyDetail(const WeekDays &days);
WeekDays ReadWeeklyDetail(const QString &detail);

/// A weekday of the month: "31" in a monthly rule (the Forth Monday), "1202" in a yearly one (the Second Tuesday of
/// March). In a monthly rule, the month is -1.
struct MonthWeekday
{
    int ordinal = -1; ///< 0 to 9; the lists have 0 to 4, and a greater number means the last
    int weekday = -1; ///< 0 to 6
    int month = -1;
};
QString MonthlyDetail(int ordinal, int weekday);
QString YearlyDetail(int ordinal, int weekday, int month);
MonthWeekday ReadMonthWeekday(const QString &detail);

/// A yearly date: the position of the month, as a decimal number.
int ReadMonthDetail(const QString &detail);

/// Reads a number for a column of 16 bits: the whole text or the number at its start, rounded. Returns nothing if the
/// number does not fit.
std::optional<qint16> ReadShort(const QString &text);

/// A reminder that occurs once: its date, month first and with all digits of the year, so that it remains the same day
/// in every order and century.
QString OnceDetail(const QDate &date);
/// The detail may also be the text as it was typed, if that is a valid date with the month first. Rows of earlier
/// versions may contain it in the order in which it was typed, so the user's order is tried next, and then the others.
std::optional<QDate> ReadOnceDetail(const QString &detail, DateOrder dateOrder);
/// Rewrites such dates with the month first. Called before the user's order changes, so that they remain the same days
/// in the new order. The caller has begun a transaction. Throws RuntimeFailure.
void KeepOnceDates(Database &database, DateOrder dateOrder);
