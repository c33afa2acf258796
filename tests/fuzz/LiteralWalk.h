// A second implementation of the walk over a rule's dates, slow and literal, to compare the program's walk with: it
// reads dates from text and looks for weekdays one day at a time. It handles the known patterns except single dates,
// with their detail in its plain form.
#pragma once

#include <vector>

#include <QRegularExpression>

#include "logic/reminders/RecurrenceRule.h"
#include "text/Dates.h"

struct Walked
{
    bool failed = false;
    std::vector<QDate> dates;
    bool operator==(const Walked &) const = default;
};

class LiteralWalk
{
public:
    static bool canRead(const RecurrenceRule &rule)
    {
        static const QRegularExpression plain("^(0[01] .*|1[01] [01]{7}|20 \\d{1,2}|21 \\d\\d|30 \\d{1,2}|31 \\d{4})$",
                                              QRegularExpression::DontCaptureOption);
        const QString form = QStringLiteral("%1%2 ").arg(rule.RecurrenceType).arg(rule.RecurrenceSubtype);
        return rule.StartDate.year() > 1000 && rule.EndDate.isValid() &&
               plain.match(form + rule.RecurrenceDetail).hasMatch();
    }
    LiteralWalk(const RecurrenceRule &rule, bool monthByName) : r(rule), byName(monthByName)
    {
        const bool second = r.RecurrenceSubtype == 1;
        if (!r.is(Pattern::Yearly) && !(second && r.is(Pattern::Daily)) && r.RecurrenceInterval < 1)
            result.failed = true;
        else if (r.is(Pattern::Daily))
            second ? everyWeekday() : everyXDays();
        else if (r.is(Pattern::Weekly))
            weekly();
        else if (r.is(Pattern::Monthly))
            second ? sameWeekday(r.StartDate.month(), false, r.RecurrenceInterval)
                   : sameDay(r.StartDate.month(), r.RecurrenceDetail, 1, r.RecurrenceInterval);
        else
            second ? sameWeekday(number(2, 2) + byName, true, 12)
                   : sameDay(number(0, 2) + byName, QString::number(r.RecurrenceInterval), 12, 12);
    }

    Walked result;

private:
    static int weekday(const QDate &date) { return date.dayOfWeek() % 7; } // 0 is Sunday
    static QDate seek(QDate d, int day, int step)
    {
        while (weekday(d) != day)
            d = d.addDays(step);
        return d;
    }
    int number(qsizetype at, qsizetype length) const { return r.RecurrenceDetail.mid(at, length).toInt(); }

    void everyXDays()
    {
        for (QDate d = r.StartDate; d <= r.EndDate; d = d.addDays(r.RecurrenceInterval))
            result.dates.push_back(d);
    }
    void everyWeekday()
    {
        for (QDate d = r.StartDate; d <= r.EndDate; d = d.addDays(1))
            if (weekday(d) != 0 && weekday(d) != 6)
                result.dates.push_back(d);
    }
    void weekly()
    {
        for (int i = 0; i < 7; ++i)
            if (r.RecurrenceDetail[i] == u'1') {
                result.dates.push_back(seek(r.StartDate, i, 1));
                while (result.dates.back() <= r.EndDate)
                    result.dates.push_back(result.dates.back().addDays(7 * r.RecurrenceInterval));
            }
    }
    /// Begins at that day in the year of the start date, or `toFirst` months later if that day is before the start.
    void sameDay(int month, const QString &day, int toFirst, int toNext)
    {
        const auto first = ReadDate(QStringLiteral("%1/%2/%3").arg(month).arg(day).arg(r.StartDate.year()));
        result.failed = !first;
        QDate d = first.value_or(r.EndDate.addDays(1));
        if (d < r.StartDate)
            d = d.addMonths(toFirst);
        for (; d <= r.EndDate; d = d.addMonths(toNext))
            result.dates.push_back(d);
    }
    /// A weekday by its ordinal, where 4 and above mean the last one of the month.
    void sameWeekday(int month, bool eachYear, int toNext)
    {
        const int x = number(0, 1), w = number(1, 1);
        result.failed = w > 6 || month < 1 || month > 12; // looking for a weekday 7 would never end
        for (QDate d = r.StartDate; !result.failed && d <= r.EndDate;) {
            const QDate first(d.year(), eachYear ? month : d.month(), 1);
            d = x < 4 ? seek(first, w, 1).addDays(7 * x) : seek(first.addMonths(1).addDays(-1), w, -1);
            if (d >= r.StartDate)
                result.dates.push_back(d);
            d = QDate(d.year(), d.month(), 1).addMonths(toNext);
        }
    }

    const RecurrenceRule &r;
    const bool byName;
};
