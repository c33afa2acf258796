// The logic of the reminder editor: the contents of its controls as a struct, and functions that make the sentence,
// convert the controls to a rule and back, check them, and make the preview. Each field has the name of its control.
// The editor's window fills and reads the fields; ostrelmark-data uses the same checks. Only the meaning of two-digit
// years depends on the clock (text/Dates.h).
#pragma once

#include <optional>
#include <vector>

#include <QDate>
#include <QString>

#include "logic/reminders/Occurrences.h"
#include "logic/reminders/RecurrenceRule.h"
#include "text/Dates.h"

/// A date box. While its text is still the one that the program put there, from a stored rule or from the calendar, the
/// box stands for exactly that date, whatever the order and the century. Any other text is read as typed.
struct DateBox
{
    QString text;
    QDate put;
};
DateBox PutDate(const QDate &date, const DateConventions &dates);
/// Reads a box for the first or last day, in the user's order.
std::optional<QDate> ReadRangeDate(const DateBox &box, const DateConventions &dates);
/// Reads the box for the date of a reminder that occurs once: month first or, if that gives no valid date, in the
/// user's order.
std::optional<QDate> ReadOnceDate(const DateBox &box, const DateConventions &dates);

/// The initial values are those of the controls of a new window, except for the dates and the positions in lists.
/// Positions count from 0; -1 means no selection.
struct EditorFields
{
    QString txt_TaskDescription;
    DateBox txt_StartDate;
    DateBox txt_endDate;
    Pattern pattern = Pattern::Daily; ///< which of opt_Daily ... opt_Once is on
    QString txt_EnglishDesc;          ///< the sentence; it is stored as it is shown

    bool opt_DailyEveryWeekday = false; ///< otherwise opt_DailyEveryXDays
    QString txt_DailyDays = QStringLiteral("1");

    QString txt_WeeklyWeeks = QStringLiteral("1");
    WeekDays chk_WeeklyDay{};

    bool Opt_MonthlyXWeekdayofEveryMonth = false; ///< otherwise opt_MonthlyXdayofEveryMonth
    QString txt_MonthlyDay = QStringLiteral("1");
    QString txt_MonthlyNumofMonths = QStringLiteral("1");
    int cbo_MonthlyXth = 0;
    int cbo_MonthlyWeekday = 0;
    QString txt_MonthlyNumofMonths2 = QStringLiteral("1");

    bool opt_YearlyThe = false; ///< otherwise opt_YearlyEvery
    int cbo_YearlyMonth = 0;
    QString txt_YearlyDay = QStringLiteral("1");
    int cbo_YearlyXth = 0;
    int cbo_YearlyWeekday = 0;
    int cbo_YearlyMonth2 = 0;

    DateBox txt_OnceDate;
};

/// The sentence for the contents of the controls, which are not checked.
QString EnglishSentence(const EditorFields &fields);

/// Writes the fields of the chosen pattern into the rule; what the pattern does not need keeps its value in the rule. A
/// number that does not fit into 16 bits becomes 0, and an impossible date an invalid one; EditFault() refuses both.
void StoreRecurrence(const EditorFields &fields, const DateConventions &dates, RecurrenceRule &rule);

/// Sets the fields of the rule's pattern and leaves the others as they are. The sentence is the stored one, or a new
/// one if none is stored. A list has no selection if the detail does not say which, so that the keeper must choose.
void ShowRecurrence(const RecurrenceRule &rule, const DateConventions &dates, EditorFields &fields);

/// A message box with an information icon and OK; afterwards the control of that name gets the focus.
struct EditorComplaint
{
    QString text;
    QString title;
    QString control;
};

/// The first mistake that prevents the rule from being stored; nothing if there is none.
std::optional<EditorComplaint> EditFault(const EditorFields &fields, const DateConventions &dates);

/// All dates of the rule in the editor, in the order of Walk(), or what is wrong with it. Only what Walk() needs is
/// checked, so that a rule can be previewed before it has a task.
struct RulePreview
{
    std::vector<QDate> dates;
    std::optional<EditorComplaint> complaint;
};
RulePreview MakePreview(const EditorFields &fields, const DateConventions &dates);
