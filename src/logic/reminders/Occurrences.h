// Turns a rule into its dates. Walk() serves three runs: the upcoming reminders on the toolbar, the schedule and the
// editor's preview. It starts at the rule's first day and goes on step by step; it does not sort the dates. If the
// dates of a rule cannot be worked out, it returns a fault and emits none. It never throws and always ends. It works
// with complete dates, so a date never changes its century.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QDate>
#include <QString>

#include "text/Dates.h"

struct RecurrenceRule;

/// How the month of a yearly rule is understood. It is stored as a position, with 0 for January. The toolbar and the
/// schedule take it for the number of the month, so they show a rule for March in February and have no date for a rule
/// for January.
enum class YearlyMonth { Position, Number };

/// The differences between the three runs.
struct OccurrenceRun
{
    YearlyMonth month;
    bool usefilter;             ///< only dates within the range are wanted
    const char *weekdayPicture; ///< precedes the user's date picture in the text of a date
    bool showsTask;             ///< not in the preview, where all dates are of one task
};
inline constexpr OccurrenceRun previewRun{YearlyMonth::Position, false, "dddd ", false};
inline constexpr OccurrenceRun scheduleRun{YearlyMonth::Number, true, "dddd ", true};
inline constexpr OccurrenceRun upcomingRun{YearlyMonth::Number, true, "ddd ", true};

struct DateRange
{
    QDate from;
    QDate to; ///< both days are included
};
/// From today to the same day two years later.
DateRange TwoYearsFrom(const QDate &today);

/// Why a rule has no dates. The editor has a message for each (RuleFields.h).
enum class WalkFault { NoStart, NoEnd, NoStep, NoDay, NoOrdinal, NoWeekday, NoMonth, NoOnceDate };

/// Calls `send` with each date of the rule. A weekly rule gives all dates of one weekday before those of the next, and
/// for each weekday one date beyond the rule's end. `range` counts only in a run with `usefilter`; `dateOrder` is for
/// the date of a reminder that occurs once, which is stored as typed. If a fault is returned, `send` was not called.
std::optional<WalkFault> Walk(const RecurrenceRule &rule, const OccurrenceRun &run, const DateRange &range,
                              DateOrder dateOrder, const std::function<void(const QDate &)> &send);

/// The date as a run shows it, with the weekday in front: in full, or abbreviated on the toolbar.
QString OccurrenceText(const OccurrenceRun &run, const QDate &date, const QString &datePicture);
/// "yyyymmdd", so that the order by text is the order by date.
QString OccurrenceKey(const QDate &date);
QDate DateOfOccurrenceKey(const QString &key); ///< invalid if the text is not such a key

/// The soonest dates of all reminders, as the toolbar shows them. Reminders of the same day are sorted by their tasks,
/// without regard to case.
class UpcomingReminders
{
public:
    static constexpr std::size_t most = 20;

    /// Keeps the date if it is among the soonest.
    void add(const QDate &date, const QString &task);
    /// Soonest first, such as "Mon 06/08/98 Feed the fish".
    QStringList texts(const QString &datePicture) const;

private:
    struct Entry
    {
        QDate date;
        QString task;
        bool operator<(const Entry &other) const;
    };
    std::vector<Entry> m_entries; ///< sorted, at most `most`
};
