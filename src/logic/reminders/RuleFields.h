// What the editor's controls hold while a reminder is composed, and everything the editor must know about it: the
// sentence, how the controls become a rule and a rule the controls, what is refused and in which words, the preview.
// Pure functions; the window fills and reads the fields, and each field has the name of its control.
#pragma once

#include <optional>
#include <vector>

#include <QDate>
#include <QString>

#include "logic/reminders/Occurrences.h"
#include "logic/reminders/RecurrenceRule.h"
#include "text/Dates.h"

/// A date box. A date that the program put in (of the stored rule, of the calendar) counts as that date as long as the
/// text stands as it was put, in every order and century; any other text is read as typed.
struct DateBox
{
    QString text;
    QDate put;
};
DateBox PutDate(const QDate &date, const DateConventions &dates);
/// The first and last day of the range, in the user's order.
std::optional<QDate> ReadRangeDate(const DateBox &box, const DateConventions &dates);
/// The once date: month first, and where that is none, in the user's order.
std::optional<QDate> ReadOnceDate(const DateBox &box, const DateConventions &dates);

/// Starts as a new window's controls do, but for the lists' positions and the dates. Positions count from 0, -1 is no
/// selection.
struct EditorFields
{
    QString txt_TaskDescription;
    DateBox txt_StartDate;
    DateBox txt_endDate;
    Pattern pattern = Pattern::Daily; ///< which of opt_Daily ... opt_Once is on
    QString txt_EnglishDesc;          ///< the sentence as it is shown, which is the one that is stored

    bool opt_DailyEveryWeekday = false; ///< else opt_DailyEveryXDays
    QString txt_DailyDays = QStringLiteral("1");

    QString txt_WeeklyWeeks = QStringLiteral("1");
    WeekDays chk_WeeklyDay{};

    bool Opt_MonthlyXWeekdayofEveryMonth = false; ///< else opt_MonthlyXdayofEveryMonth
    QString txt_MonthlyDay = QStringLiteral("1");
    QString txt_MonthlyNumofMonths = QStringLiteral("1");
    int cbo_MonthlyXth = 0;
    int cbo_MonthlyWeekday = 0;
    QString txt_MonthlyNumofMonths2 = QStringLiteral("1");

    bool opt_YearlyThe = false; ///< else opt_YearlyEvery
    int cbo_YearlyMonth = 0;
    QString txt_YearlyDay = QStringLiteral("1");
    int cbo_YearlyXth = 0;
    int cbo_YearlyWeekday = 0;
    int cbo_YearlyMonth2 = 0;

    DateBox txt_OnceDate;
};

/// The sentence of the controls as they stand, unchecked.
QString EnglishSentence(const EditorFields &fields);

/// Into the rule go the fields of the pattern that is on; what that pattern does not need stays in the rule. A number
/// that does not fit 16 bits is stored as 0, a date that is none as an invalid one: EditFault() refuses both.
void StoreRecurrence(const EditorFields &fields, const DateConventions &dates, RecurrenceRule &rule);

/// Sets the fields of the rule's own pattern, the others stay; at last the stored sentence, or a new one where there is
/// none. A list whose position the detail does not tell is left without a selection, for the keeper to choose.
void ShowRecurrence(const RecurrenceRule &rule, const DateConventions &dates, EditorFields &fields);

/// A box with an information icon and OK; then the focus goes to the control of that name.
struct EditorComplaint
{
    QString text;
    QString title;
    QString control;
};

/// The first thing that keeps the rule from being stored; nothing if all is well.
std::optional<EditorComplaint> EditFault(const EditorFields &fields, const DateConventions &dates);

/// All dates of the rule as composed, in the order of the walk, or what is wrong with it. Only what the walk needs is
/// looked at, so that a rule can be previewed before it has a task.
struct RulePreview
{
    std::vector<QDate> dates;
    std::optional<EditorComplaint> complaint;
};
RulePreview MakePreview(const EditorFields &fields, const DateConventions &dates);
