// The walk: from a rule to its dates, one routine for the three runs (the upcoming reminders, the schedule, the
// editor's preview). It goes from the rule's first day on, step by step, emits in that order, sorts nothing and keeps
// nothing between two rules. A rule whose dates cannot be made is told by a fault, before anything is emitted: a walk
// neither throws nor runs for ever. A walking date is a real date and so keeps its century, whatever two digits would
// mean.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QDate>
#include <QString>

#include "text/Dates.h"

struct RecurrenceRule;

/// How the detail's month of a yearly rule is taken. It is stored as a position, 0 for January; the lists take it for
/// the month's number, so that a rule of March stands there in February and one of January has no date.
enum class YearlyMonth { Position, Number };

/// What makes the three runs differ, side by side.
struct OccurrenceRun
{
    YearlyMonth month;
    bool usefilter;             ///< only dates within the range asked for
    const char *weekdayPicture; ///< before the user's date picture, in the text of a date
    bool showsTask;             ///< in the preview all dates are of one task
};
inline constexpr OccurrenceRun previewRun{YearlyMonth::Position, false, "dddd ", false};
inline constexpr OccurrenceRun scheduleRun{YearlyMonth::Number, true, "dddd ", true};
inline constexpr OccurrenceRun upcomingRun{YearlyMonth::Number, true, "ddd ", true};

struct DateRange
{
    QDate from;
    QDate to; ///< included, as `from`
};
/// Today and the two years after it, to the day.
DateRange TwoYearsFrom(const QDate &today);

/// Why a rule has no dates; the editor has a box for each (RuleFields.h).
enum class WalkFault { NoStart, NoEnd, NoStep, NoDay, NoOrdinal, NoWeekday, NoMonth, NoOnceDate };

/// Hands over the rule's dates in the order of the walk: weekdays of a weekly rule one after the other, its last date
/// beyond the end. `range` is looked at in a run with filter. The user's order serves the once date, which is kept as
/// typed. With a fault nothing has been emitted.
std::optional<WalkFault> Walk(const RecurrenceRule &rule, const OccurrenceRun &run, const DateRange &range,
                              DateOrder dateOrder, const std::function<void(const QDate &)> &send);

/// The date as a run shows it: in the lists that are wide enough with the whole name of the weekday.
QString OccurrenceText(const OccurrenceRun &run, const QDate &date, const QString &datePicture);
/// "yyyymmdd": as text in order of date.
QString OccurrenceKey(const QDate &date);

/// The soonest dates of all reminders, as the toolbar shows them. Same days are in order of their tasks, without regard
/// to case.
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
