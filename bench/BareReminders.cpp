#include "BareReminders.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>

#include <libical/ical.h>
#include <QStringList>

#include "store/Database.h"

namespace bare {

namespace {

using namespace std::chrono;

Day dayNumber(const year_month_day &date) { return Day(sys_days(date).time_since_epoch().count()); }
year_month_day dateOf(Day day) { return sys_days(days(day)); }
int weekdayOf(Day day) { return int(weekday(sys_days(days(day))).c_encoding()); }

year_month_day monthsLater(const year_month_day &date, int count)
{
    const year_month_day moved = date + months(count);
    return moved.ok() ? moved : moved.year() / moved.month() / last;
}

Day weekdayOfMonth(year_month month, int ordinal, int wanted)
{
    if (ordinal < 4) {
        const Day first = dayNumber(month / day(1));
        return first + (wanted - weekdayOf(first) + 7) % 7 + 7 * ordinal;
    }
    const Day end = dayNumber(month / last);
    return end - (weekdayOf(end) - wanted + 7) % 7;
}

/// A day and the number of its rule, the soonest twenty of them in order.
class Twenty
{
public:
    void add(Day day, int rule)
    {
        if (m_entries.size() == 20) {
            if (day >= m_entries.back().first)
                return;
            m_entries.pop_back();
        }
        const std::pair entry(day, rule);
        m_entries.insert(std::upper_bound(m_entries.begin(), m_entries.end(), entry), entry);
    }
    std::vector<std::pair<Day, int>> entries() const { return m_entries; }

private:
    std::vector<std::pair<Day, int>> m_entries;
};

std::string iso(Day day)
{
    const auto date = dateOf(day);
    char text[16];
    std::snprintf(text, sizeof text, "%04d-%02u-%02u", int(date.year()), unsigned(date.month()), unsigned(date.day()));
    return text;
}

template <class Send> void walkMonthly(const Rule &rule, int step, Send send)
{
    if (rule.subtype == 0) {
        const auto begin = dateOf(rule.start);
        const auto first = rule.pattern == 3 ? begin.year() / rule.month / rule.interval
                                             : begin.year() / begin.month() / rule.monthDay;
        auto date = dayNumber(first) < rule.start ? monthsLater(first, rule.pattern == 3 ? 12 : 1) : first;
        for (; dayNumber(date) <= rule.end; date = monthsLater(date, step))
            send(dayNumber(date));
        return;
    }
    for (Day d = rule.start; d <= rule.end;) {
        const auto at = dateOf(d);
        const year_month month = rule.pattern == 3 ? at.year() / rule.month : at.year() / at.month();
        if (const Day found = weekdayOfMonth(month, rule.ordinal, rule.weekday); found >= rule.start)
            send(found);
        d = dayNumber((month + months(step)) / day(1));
    }
}

template <class Send> void walkAll(const Rule &rule, Send send)
{
    if (rule.pattern == 0 && rule.subtype == 0) {
        for (Day d = rule.start; d <= rule.end; d += rule.interval)
            send(d);
    } else if (rule.pattern == 0) {
        for (Day d = rule.start; d <= rule.end; ++d)
            if (const int weekday = weekdayOf(d); weekday != 0 && weekday != 6)
                send(d);
    } else if (rule.pattern == 1) {
        for (int i = 0; i < 7; ++i)
            if (rule.days[std::size_t(i)] == '1')
                for (Day d = rule.start + (i - weekdayOf(rule.start) + 7) % 7; d <= rule.end + 7 * rule.interval - 1;
                     d += 7 * rule.interval)
                    send(d);
    } else if (rule.pattern == 4) {
        send(rule.once);
    } else {
        walkMonthly(rule, rule.pattern == 3 ? 12 : rule.interval, send);
    }
}

icalrecurrencetype recurrence(const Rule &rule)
{
    constexpr const char *names[] = {"SU", "MO", "TU", "WE", "TH", "FR", "SA"};
    std::string every = ";INTERVAL=";
    every += std::to_string(rule.interval);
    std::string which = ";BYDAY=";
    which += rule.ordinal < 4 ? std::to_string(rule.ordinal + 1) : "-1";
    which += names[rule.weekday];
    std::string text;
    if (rule.pattern == 0) {
        text = rule.subtype == 0 ? "FREQ=DAILY" + every : std::string("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR");
    } else if (rule.pattern == 1) {
        text = "FREQ=WEEKLY;WKST=SU" + every + ";BYDAY=";
        for (std::size_t i = 0; i < 7; ++i)
            if (rule.days[i] == '1') {
                if (text.back() != '=')
                    text += ',';
                text += names[i];
            }
    } else if (rule.pattern == 2) {
        text = "FREQ=MONTHLY" + every + (rule.subtype == 0 ? ";BYMONTHDAY=" + std::to_string(rule.monthDay) : which);
    } else {
        text = "FREQ=YEARLY;BYMONTH=" + std::to_string(rule.month) +
               (rule.subtype == 0 ? ";BYMONTHDAY=" + std::to_string(rule.interval) : which);
    }
    return icalrecurrencetype_from_string(text.c_str());
}

/// Midnight of the day: with plain dates the library's skip ahead does not come back.
icaltimetype icalMidnight(Day day)
{
    const auto date = dateOf(day);
    icaltimetype time = icaltime_null_time();
    time.year = int(date.year());
    time.month = int(unsigned(date.month()));
    time.day = int(unsigned(date.day()));
    return time;
}

} // namespace

std::vector<Rule> sampleRules()
{
    std::vector<Rule> rules;
    for (int i = 0; i < 1000; ++i) {
        const int kind = i % 8;
        Rule rule{};
        rule.pattern = std::array{0, 0, 1, 2, 2, 3, 3, 4}[std::size_t(kind)];
        rule.subtype = std::array{0, 1, 0, 0, 1, 0, 1, 0}[std::size_t(kind)];
        rule.interval = rule.pattern == 3 ? 1 + i % 28 : 1 + i / 8 % 9;
        rule.start = dayNumber(year(1990) / month(unsigned(1 + i % 12)) / day(unsigned(1 + i % 28)));
        rule.end = dayNumber(year(2050) / 1 / 1);
        rule.days = i % 3 == 0 ? "0100000" : i % 3 == 1 ? "0101000" : "1000001";
        rule.ordinal = i % 5;
        rule.weekday = i % 7;
        rule.monthDay = 1 + i % 28;
        rule.month = 1 + i % 11;
        rule.once = dayNumber(year(2026) / 12 / 1) + i;
        rule.task = "Reminder number " + std::to_string(i) + " of the bench";
        rules.push_back(rule);
    }
    return rules;
}

void writeRules(Database &database, const std::vector<Rule> &rules)
{
    Database::Transaction whole(database);
    for (const Rule &rule : rules) {
        QString detail;
        switch (rule.pattern) {
        case 1: detail = QString::fromStdString(rule.days); break;
        case 2:
            detail = rule.subtype == 0 ? QString::number(rule.monthDay)
                                       : QString::number(rule.ordinal) + QString::number(rule.weekday);
            break;
        case 3:
            detail = rule.subtype == 0 ? QString::number(rule.month)
                                       : QStringLiteral("%1%2%3")
                                             .arg(rule.ordinal)
                                             .arg(rule.weekday)
                                             .arg(rule.month, 2, 10, QLatin1Char('0'));
            break;
        case 4: {
            const std::string date = iso(rule.once);
            detail = QString::fromStdString(date.substr(5, 2) + '/' + date.substr(8, 2) + '/' + date.substr(0, 4));
            break;
        }
        default: break;
        }
        database.Execute(
            QStringLiteral(
                "INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype, "
                "SchedRSubtype, SchedDetailText) VALUES (?, ?, ?, ?, ?, ?, ?)"),
            {QString::fromStdString(rule.task), QString::fromStdString(iso(rule.start)),
             QString::fromStdString(iso(rule.end)), rule.interval, rule.pattern, rule.subtype, detail});
    }
    whole.commit();
}

void walk(const Rule &rule, Day from, Day to, const std::function<void(Day)> &send)
{
    walkAll(rule, [&](Day day) {
        if (day >= from && day <= to)
            send(day);
    });
}

std::vector<std::pair<Day, int>> soonestTwenty(const std::vector<Rule> &rules, Day from, Day to)
{
    Twenty twenty;
    for (int i = 0; i < int(rules.size()); ++i)
        walkAll(rules[std::size_t(i)], [&](Day day) {
            if (day >= from && day <= to)
                twenty.add(day, i);
        });
    return twenty.entries();
}

std::vector<Texts> scheduleTexts(const std::vector<Rule> &rules, Day from, Day to)
{
    constexpr const char *names[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    std::vector<Texts> rows;
    for (const Rule &rule : rules)
        walkAll(rule, [&](Day day) {
            if (day < from || day > to)
                return;
            const auto date = dateOf(day);
            const int y = int(date.year());
            const unsigned m = unsigned(date.month()), d = unsigned(date.day());
            char shown[40], key[16];
            std::snprintf(shown, sizeof shown, "%s %02u/%02u/%02d", names[weekdayOf(day)], m, d, y % 100);
            std::snprintf(key, sizeof key, "%04d%02u%02u", y, m, d);
            rows.push_back({shown, rule.task, key});
        });
    return rows;
}

std::vector<std::pair<Day, int>> soonestTwentyByLibical(const std::vector<Rule> &rules, Day from, Day to)
{
    Twenty twenty;
    const icaltimetype begin = icalMidnight(from), end = icalMidnight(to);
    for (int i = 0; i < int(rules.size()); ++i) {
        const Rule &rule = rules[std::size_t(i)];
        if (rule.pattern == 4) {
            if (rule.once >= from && rule.once <= to)
                twenty.add(rule.once, i);
            continue;
        }
        icalrecur_iterator *iterator = icalrecur_iterator_new(recurrence(rule), icalMidnight(rule.start));
        icalrecur_iterator_set_start(iterator, begin);
        for (icaltimetype at = icalrecur_iterator_next(iterator);
             !icaltime_is_null_time(at) && icaltime_compare_date_only(at, end) <= 0;
             at = icalrecur_iterator_next(iterator))
            twenty.add(dayNumber(year(at.year) / at.month / at.day), i);
        icalrecur_iterator_free(iterator);
    }
    return twenty.entries();
}

} // namespace bare
