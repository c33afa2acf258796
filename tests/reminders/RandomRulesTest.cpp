// Whole expansions of thousands of random rules against a second walk, slow and literal: it makes each date of its text
// and looks for weekdays a day at a time.
#include <cstdlib>
#include <random>

#include <gtest/gtest.h>

#include "reminders/Occurrences.h"
#include "reminders/RecurrenceRule.h"
#include "support/ScriptedDoors.h"
#include "text/Dates.h"

namespace {

class LiteralWalk
{
public:
    LiteralWalk(const RecurrenceRule &rule, bool monthByName, bool usefilter, const DateRange &range) :
        r(rule), byName(monthByName), filtered(usefilter), wanted(range)
    {
        const bool second = r.RecurrenceSubtype == 1;
        switch (Pattern(r.RecurrenceType)) {
        case Pattern::Daily: second ? everyWeekday() : everyXDays(); break;
        case Pattern::Weekly: weekly(); break;
        case Pattern::Monthly: second ? monthlyWeekday() : monthlyDay(); break;
        case Pattern::Yearly: second ? yearlyWeekday() : yearlyDay(); break;
        case Pattern::Once: emitDate(fromText(r.RecurrenceDetail)); break;
        }
        if (failed)
            dates.clear();
    }

    std::vector<QDate> dates;
    bool failed = false;

private:
    static int weekday(const QDate &date) { return date.dayOfWeek() % 7 + 1; } // 1 is Sunday
    QDate fromText(const QString &text)
    {
        const auto date = ReadDate(text);
        failed = failed || !date;
        return date.value_or(QDate());
    }
    void emitDate(const QDate &d)
    {
        if (!filtered || (d >= wanted.from && d <= wanted.to))
            dates.push_back(d);
    }
    bool moves() { return !(failed = r.RecurrenceInterval <= 0); }
    int number(qsizetype at, qsizetype length)
    {
        bool ok = false;
        const int value = r.RecurrenceDetail.mid(at, length).toInt(&ok);
        failed = failed || !ok;
        return value;
    }

    void everyXDays()
    {
        for (QDate d = r.StartDate; moves() && d <= r.EndDate; d = d.addDays(r.RecurrenceInterval))
            emitDate(d);
    }
    void everyWeekday()
    {
        for (QDate d = r.StartDate; d <= r.EndDate; d = d.addDays(1))
            if (weekday(d) >= 2 && weekday(d) <= 6)
                emitDate(d);
    }
    void weekly()
    {
        for (int i = 1; moves() && i <= 7; ++i) {
            if (r.RecurrenceDetail.mid(i - 1, 1) != "1")
                continue;
            QDate d = r.StartDate;
            while (weekday(d) != i)
                d = d.addDays(1);
            emitDate(d);
            while (d <= r.EndDate)
                emitDate(d = d.addDays(7 * r.RecurrenceInterval));
        }
    }
    void monthlyDay()
    {
        if (moves())
            sameDay(r.StartDate.month(), r.RecurrenceDetail.trimmed(), 1, r.RecurrenceInterval);
    }
    void yearlyDay() { sameDay(number(0, -1) + byName, QString::number(r.RecurrenceInterval), 12, 12); }
    /// From that day in the year of the start, or so many months later where that is before it.
    void sameDay(int month, const QString &day, int toFirst, int toNext)
    {
        QDate d = fromText(QString("%1/%2/%3").arg(month).arg(day).arg(r.StartDate.year()));
        if (failed)
            return;
        if (d < r.StartDate)
            d = AddMonths(d, toFirst);
        for (; d <= r.EndDate; d = AddMonths(d, toNext))
            emitDate(d);
    }
    /// From the first of a month to its weekday of that ordinal.
    QDate place(QDate d, int x, int w)
    {
        if (x < 4) {
            while (weekday(d) != w + 1)
                d = d.addDays(1);
            return d.addDays(7 * x);
        }
        d = AddMonths(d, 1).addDays(-1);
        while (weekday(d) != w + 1)
            d = d.addDays(-1);
        return d;
    }
    void monthlyWeekday()
    {
        if (moves())
            sameWeekday(0, r.RecurrenceInterval);
    }
    void yearlyWeekday()
    {
        const int month = number(2, 2) + byName;
        failed = failed || month < 1 || month > 12;
        sameWeekday(month, 12);
    }
    void sameWeekday(int month, int toNext) ///< month 0: the one that the walk is in
    {
        const int x = number(0, 1), w = number(1, 1);
        failed = failed || w > 6; // would look for ever
        for (QDate d = r.StartDate; !failed && d <= r.EndDate;) {
            d = place(QDate(d.year(), month == 0 ? d.month() : month, 1), x, w);
            if (d >= r.StartDate)
                emitDate(d);
            d = AddMonths(QDate(d.year(), d.month(), 1), toNext);
        }
    }

    const RecurrenceRule &r;
    bool byName, filtered;
    DateRange wanted;
};

class RandomRules
{
public:
    explicit RandomRules(unsigned seed) : m_engine(seed) {}

    int from(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_engine); }
    QDate day(int lastYear) { return QDate(1990, 1, 1).addDays(from(0, (lastYear - 1990) * 365)); }

    RecurrenceRule next()
    {
        RecurrenceRule rule;
        rule.RecurrenceType = qint16(from(0, 4));
        rule.RecurrenceSubtype = qint16(from(0, 1));
        rule.StartDate = day(2050);
        rule.EndDate = rule.StartDate.addDays(from(0, 9) == 0 ? from(-60, 40) : from(0, 3000));
        rule.RecurrenceInterval = qint16(from(0, 19) == 0 ? from(-1, 0) : from(1, from(0, 1) == 0 ? 4 : 60));
        rule.RecurrenceDetail = from(0, 19) == 0 ? QString("x") : detail(rule);
        if (rule.is(Pattern::Yearly) && rule.RecurrenceSubtype == 0)
            rule.RecurrenceInterval = qint16(from(0, 32));
        return rule;
    }

private:
    QString detail(const RecurrenceRule &rule)
    {
        const bool weekday = rule.RecurrenceSubtype == 1;
        switch (Pattern(rule.RecurrenceType)) {
        case Pattern::Daily: return {};
        case Pattern::Weekly: return QString("%1").arg(from(0, 127), 7, 2, QChar('0'));
        case Pattern::Monthly:
            return weekday ? QString("%1%2").arg(from(0, 5)).arg(from(0, 7)) : QString::number(from(0, 32));
        case Pattern::Yearly:
            return weekday ? QString("%1%2%3").arg(from(0, 4)).arg(from(0, 6)).arg(from(0, 12), 2, 10, QChar('0'))
                           : QString::number(from(0, 12));
        case Pattern::Once: return day(2050).toString("MM/dd/yyyy");
        }
        return {};
    }

    std::mt19937 m_engine;
};

} // namespace

TEST(RandomRules, WalkAsTheLiteralWalkDoes)
{
    const ScriptedDoors doors;
    const char *given = std::getenv("OMK_TEST_SEED");
    const unsigned seed = given ? unsigned(std::strtoul(given, nullptr, 10)) : std::random_device()();
    std::printf("seed %u\n", seed);
    RandomRules random(seed);
    const OccurrenceRun *const runs[] = {&previewRun, &scheduleRun, &upcomingRun};
    int made = 0, failed = 0;
    for (int i = 0; i < 6000; ++i) {
        const RecurrenceRule rule = random.next();
        const OccurrenceRun &run = *runs[i % 3];
        const QDate from = rule.StartDate.addDays(random.from(-400, 2000));
        const DateRange range{from, from.addDays(random.from(0, 800))};
        const LiteralWalk literal(rule, i % 3 == 0, i % 3 != 0, range);
        std::vector<QDate> dates;
        const auto fault = Walk(rule, run, range, "MMDDYY", [&dates](const QDate &date) { dates.push_back(date); });
        ASSERT_EQ(fault.has_value(), literal.failed) << "rule " << i << " of seed " << seed;
        ASSERT_TRUE(dates == literal.dates) << "rule " << i << " of seed " << seed;
        made += !dates.empty();
        failed += literal.failed;
    }
    EXPECT_GT(made, 2500) << "too few rules had dates for the comparison to mean anything";
    EXPECT_GT(failed, 300);
}
