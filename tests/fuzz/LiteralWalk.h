// A second implementation of the walk over a rule's dates, slow and literal, to compare the program's walk with: it
// looks for weekdays one day at a time. It handles the known patterns except single dates, with their detail in its
// plain form.
#pragma once

#include <vector>

#include "logic/reminders/RecurrenceRule.h"

struct Walked
{
    bool failed = false;
    std::vector<QDate> dates;
    bool operator==(const Walked &) const = default;
};

class LiteralWalk
{
public:
    LiteralWalk(const RecurrenceRule &rule, bool monthByName) : r(rule)
    {
        const bool second = r.RecurrenceSubtype == 1, yearly = r.is(Pattern::Yearly);
        const int step = yearly ? 12 : second && r.is(Pattern::Daily) ? 1 : r.RecurrenceInterval;
        const int month = yearly ? number(second ? 2 : 0, 2) + monthByName : r.StartDate.month();
        if (step < 1)
            result.failed = true;
        else if (r.is(Pattern::Daily))
            days(step, second);
        else if (r.is(Pattern::Weekly))
            weeks(step);
        else if (second)
            sameWeekday(month, step);
        else
            sameDay(QDate(r.StartDate.year(), month, yearly ? r.RecurrenceInterval : number(0, 2)), step);
    }

    Walked result;

private:
    /// The next such weekday (0 is Sunday) from a day on, or with the step -1 the last one up to it.
    static QDate seek(QDate d, int weekday, int step)
    {
        while (d.dayOfWeek() % 7 != weekday)
            d = d.addDays(step);
        return d;
    }
    int number(qsizetype at, qsizetype length) const { return r.RecurrenceDetail.mid(at, length).toInt(); }

    void days(int step, bool onWeekdays)
    {
        for (QDate d = r.StartDate; d <= r.EndDate; d = d.addDays(step))
            if (!onWeekdays || d.dayOfWeek() < 6)
                result.dates.push_back(d);
    }
    void weeks(int step)
    {
        for (int i = 0; i < 7; ++i)
            if (r.RecurrenceDetail[i] == u'1') {
                result.dates.push_back(seek(r.StartDate, i, 1));
                while (result.dates.back() <= r.EndDate)
                    result.dates.push_back(result.dates.back().addDays(7 * step));
            }
    }
    /// Begins at that day, or a year or month later if that day is before the start.
    void sameDay(QDate d, int step)
    {
        result.failed = !d.isValid();
        if (d.isValid() && d < r.StartDate)
            d = d.addMonths(r.is(Pattern::Yearly) ? 12 : 1);
        for (; d.isValid() && d <= r.EndDate; d = d.addMonths(step))
            result.dates.push_back(d);
    }
    /// A weekday by its ordinal, where 4 and above mean the last one of the month.
    void sameWeekday(int month, int step)
    {
        const int ordinal = number(0, 1), weekday = number(1, 1);
        result.failed = weekday > 6 || month < 1 || month > 12; // looking for a weekday 7 would never end
        for (QDate d = r.StartDate; !result.failed && d <= r.EndDate; d = d.addMonths(step)) {
            d = QDate(d.year(), r.is(Pattern::Yearly) ? month : d.month(), 1);
            const QDate found =
                ordinal < 4 ? seek(d, weekday, 1).addDays(7 * ordinal) : seek(d.addMonths(1).addDays(-1), weekday, -1);
            if (found >= r.StartDate)
                result.dates.push_back(found);
        }
    }

    const RecurrenceRule &r;
};
