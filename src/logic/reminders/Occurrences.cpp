#include "logic/reminders/Occurrences.h"

#include <algorithm>
#include <chrono>

#include "logic/reminders/RecurrenceRule.h"
#include "text/Dates.h"

namespace {

namespace chr = std::chrono;
using chr::sys_days, chr::year_month, chr::months, chr::days, chr::weeks;

constexpr qint64 epoch = 2440588; ///< Julian day of 1 January 1970

sys_days dayOf(const QDate &date) { return sys_days(days(int(date.toJulianDay() - epoch))); }
QDate dateOf(sys_days day) { return QDate::fromJulianDay(day.time_since_epoch().count() + epoch); }

year_month monthOf(sys_days day)
{
    const chr::year_month_day date(day);
    return date.year() / date.month();
}

/// If the new month is too short for the day, the result is its last day.
sys_days plusMonths(sys_days day, months count)
{
    const chr::year_month_day moved = chr::year_month_day(day) + count;
    return moved.ok() ? moved : moved.year() / moved.month() / chr::last;
}

/// The first and last day of a rule. Each walk below calls `send(sys_days)` for its dates.
struct Course
{
    sys_days start;
    sys_days end;
};

template <class Send> void walkDays(const Course &course, days step, Send send)
{
    for (sys_days d = course.start; d <= course.end; d += step)
        send(d);
}

template <class Send> void walkWeekdays(const Course &course, Send send)
{
    unsigned weekday = chr::weekday(course.start).c_encoding(); // 0 is Sunday
    for (sys_days d = course.start; d <= course.end; d += days(1)) {
        if (weekday != 0 && weekday != 6)
            send(d);
        weekday = weekday == 6 ? 0 : weekday + 1;
    }
}

/// Emits the first date even if it is after the end, and always one date beyond the end, so that a weekly reminder is
/// still shown in its last week.
template <class Send> void walkWeeks(const Course &course, const WeekDays &chosen, weeks step, Send send)
{
    for (unsigned i = 0; i < chosen.size(); ++i) {
        if (!chosen[i])
            continue;
        sys_days d = course.start + (chr::weekday(i) - chr::weekday(course.start));
        send(d);
        while (d <= course.end) {
            d += step;
            send(d);
        }
    }
}

/// The same day of each month, beginning with `first`. If `first` is before the start, it is moved once by `catchUp`,
/// which may differ from the step.
template <class Send> void walkDate(const Course &course, sys_days first, months catchUp, months step, Send send)
{
    for (sys_days d = first < course.start ? plusMonths(first, catchUp) : first; d <= course.end;
         d = plusMonths(d, step))
        send(d);
}

sys_days weekdayOfMonth(year_month month, int ordinal, chr::weekday weekday)
{
    if (ordinal < lastOrdinal) {
        const sys_days first = month / chr::day(1);
        return first + (weekday - chr::weekday(first)) + weeks(ordinal);
    }
    const sys_days last = month / chr::last;
    return last - (chr::weekday(last) - weekday);
}

/// A weekday of every nth month, or of one month of the year. The walk compares the first of each month with the end
/// (for the first month, the start), so a date in the last month may be after the end. A date before the start is left
/// out and not replaced.
template <class Send>
void walkMonthWeekday(const Course &course, const MonthWeekday &place, std::optional<chr::month> fixed, months step,
                      Send send)
{
    const chr::weekday weekday(static_cast<unsigned>(place.weekday));
    for (sys_days d = course.start; d <= course.end;) {
        year_month month = monthOf(d);
        if (fixed)
            month = month.year() / *fixed;
        if (const sys_days day = weekdayOfMonth(month, place.ordinal, weekday); day >= course.start)
            send(day);
        d = (month + step) / chr::day(1);
    }
}

/// The month that a run understands by a position. Returns nothing if there is no such month.
std::optional<chr::month> monthAt(int position, YearlyMonth meaning)
{
    const chr::month month(static_cast<unsigned>(meaning == YearlyMonth::Position ? position + 1 : position));
    return position >= 0 && month.ok() ? std::optional(month) : std::nullopt;
}

std::optional<WalkFault> faultOf(const MonthWeekday &place)
{
    if (place.ordinal < 0)
        return WalkFault::NoOrdinal;
    if (place.weekday < 0)
        return WalkFault::NoWeekday;
    return std::nullopt;
}

std::optional<sys_days> dayIn(year_month month, int day)
{
    const chr::year_month_day date = month / day;
    return day > 0 && date.ok() ? std::optional<sys_days>(date) : std::nullopt;
}

template <class Send> std::optional<WalkFault> walkMonthly(const RecurrenceRule &rule, const Course &course, Send send)
{
    const months step(rule.RecurrenceInterval);
    if (rule.RecurrenceSubtype == 0) {
        const auto first = dayIn(monthOf(course.start), ReadShort(rule.RecurrenceDetail).value_or(0));
        if (!first)
            return WalkFault::NoDay;
        walkDate(course, *first, months(1), step, send);
    } else if (rule.RecurrenceSubtype == 1) {
        const MonthWeekday place = ReadMonthWeekday(rule.RecurrenceDetail);
        if (const auto fault = faultOf(place))
            return fault;
        walkMonthWeekday(course, place, std::nullopt, step, send);
    }
    return std::nullopt;
}

template <class Send>
std::optional<WalkFault> walkYearly(const RecurrenceRule &rule, const Course &course, YearlyMonth meaning, Send send)
{
    const months year(12);
    if (rule.RecurrenceSubtype == 0) {
        const auto month = monthAt(ReadMonthDetail(rule.RecurrenceDetail), meaning);
        if (!month)
            return WalkFault::NoMonth;
        const auto first = dayIn(monthOf(course.start).year() / *month, rule.RecurrenceInterval);
        if (!first)
            return WalkFault::NoDay;
        walkDate(course, *first, year, year, send);
    } else if (rule.RecurrenceSubtype == 1) {
        const MonthWeekday place = ReadMonthWeekday(rule.RecurrenceDetail);
        if (const auto fault = faultOf(place))
            return fault;
        const auto month = monthAt(place.month, meaning);
        if (!month)
            return WalkFault::NoMonth;
        walkMonthWeekday(course, place, month, year, send);
    }
    return std::nullopt;
}

template <class Send>
std::optional<WalkFault> walkRecurring(const RecurrenceRule &rule, const OccurrenceRun &run, Send send)
{
    if (!rule.StartDate.isValid())
        return WalkFault::NoStart;
    if (!rule.EndDate.isValid())
        return WalkFault::NoEnd;
    const Course course{dayOf(rule.StartDate), dayOf(rule.EndDate)};
    if (rule.is(Pattern::Yearly))
        return walkYearly(rule, course, run.month, send);
    if (rule.is(Pattern::Daily) && rule.RecurrenceSubtype == 1) {
        walkWeekdays(course, send);
        return std::nullopt;
    }
    if (rule.RecurrenceInterval < 1)
        return WalkFault::NoStep;
    if (rule.is(Pattern::Monthly))
        return walkMonthly(rule, course, send);
    if (rule.is(Pattern::Daily) && rule.RecurrenceSubtype == 0)
        walkDays(course, days(rule.RecurrenceInterval), send);
    else if (rule.is(Pattern::Weekly))
        walkWeeks(course, ReadWeeklyDetail(rule.RecurrenceDetail), weeks(rule.RecurrenceInterval), send);
    return std::nullopt;
}

} // namespace

DateRange TwoYearsFrom(const QDate &today) { return {today, today.addYears(2)}; }

std::optional<WalkFault> Walk(const RecurrenceRule &rule, const OccurrenceRun &run, const DateRange &range,
                              DateOrder dateOrder, const std::function<void(const QDate &)> &send)
{
    const sys_days from = run.usefilter ? dayOf(range.from) : sys_days::min();
    const sys_days to = run.usefilter ? dayOf(range.to) : sys_days::max();
    const auto filtered = [&](sys_days d) {
        if (d >= from && d <= to)
            send(dateOf(d));
    };
    if (!rule.is(Pattern::Once))
        return walkRecurring(rule, run, filtered);
    const auto once = ReadOnceDetail(rule.RecurrenceDetail, dateOrder);
    if (!once)
        return WalkFault::NoOnceDate;
    filtered(dayOf(*once));
    return std::nullopt;
}

QString OccurrenceText(const OccurrenceRun &run, const QDate &date, const QString &datePicture)
{
    return Format(date, QLatin1String(run.weekdayPicture) + datePicture);
}

QString OccurrenceKey(const QDate &date) { return Format(date, QStringLiteral("yyyymmdd")); }

QDate DateOfOccurrenceKey(const QString &key) { return QDate::fromString(key, QStringLiteral("yyyyMMdd")); }

bool UpcomingReminders::Entry::operator<(const Entry &other) const
{
    return date != other.date ? date < other.date : task.compare(other.task, Qt::CaseInsensitive) < 0;
}

void UpcomingReminders::add(const QDate &date, const QString &task)
{
    if (m_entries.size() == most) {
        if (date > m_entries.back().date || !(Entry{date, task} < m_entries.back()))
            return;
        m_entries.pop_back();
    }
    const Entry entry{date, task};
    m_entries.insert(std::upper_bound(m_entries.begin(), m_entries.end(), entry), entry);
}

QStringList UpcomingReminders::texts(const QString &datePicture) const
{
    QStringList list;
    for (const Entry &entry : m_entries)
        list << OccurrenceText(upcomingRun, entry.date, datePicture) + u' ' + entry.task;
    return list;
}
