#include "BareReminders.h"

#include <array>

#include <libical/ical.h>

#include "fuzz/LiteralWalk.h"
#include "store/Database.h"

namespace bare {

namespace {

void keepTwenty(Dates &dates, const QDate &date, int rule)
{
    dates.emplace(date, rule);
    if (dates.size() > UpcomingReminders::most)
        dates.erase(std::prev(dates.end()));
}

/// Passes the dates of a rule in the range to `send`, in no particular order.
template <class Send> void walkAll(const RecurrenceRule &rule, const DateRange &range, Send send)
{
    std::vector<QDate> dates;
    if (rule.is(Pattern::Once))
        dates = {*ReadOnceDetail(rule.RecurrenceDetail, DateOrder::MMDDYY)};
    else
        dates = LiteralWalk(rule, false).result.dates;
    for (const QDate &date : dates)
        if (date >= range.from && date <= range.to)
            send(date);
}

QString detailOf(const RecurrenceRule &rule, int i)
{
    constexpr const char *weekly[] = {"0100000", "0101000", "1000001"};
    const int ordinal = i % 5, weekday = i % 7, month = 1 + i % 11;
    switch (Pattern(rule.RecurrenceType)) {
    case Pattern::Weekly: return QLatin1String(weekly[i % 3]);
    case Pattern::Monthly:
        return rule.RecurrenceSubtype == 0 ? QString::number(1 + i % 28) : MonthlyDetail(ordinal, weekday);
    case Pattern::Yearly:
        return rule.RecurrenceSubtype == 0 ? QString::number(month) : YearlyDetail(ordinal, weekday, month);
    case Pattern::Once: return QDate(2026, 12, 1).addDays(i).toString(QStringLiteral("MM/dd/yyyy"));
    default: return {};
    }
}

QString weekdayCode(int weekday) { return WeekdayNames()[weekday].left(2).toUpper(); }

/// The part of a recurrence that names the day of a month.
QString dayOfMonth(const RecurrenceRule &rule, int day)
{
    if (rule.RecurrenceSubtype == 0)
        return QStringLiteral(";BYMONTHDAY=%1").arg(day);
    const MonthWeekday on = ReadMonthWeekday(rule.RecurrenceDetail);
    return QStringLiteral(";BYDAY=%1%2")
        .arg(on.ordinal < lastOrdinal ? on.ordinal + 1 : -1)
        .arg(weekdayCode(on.weekday));
}

QString recurrence(const RecurrenceRule &rule)
{
    const QString interval = QStringLiteral(";INTERVAL=%1").arg(rule.RecurrenceInterval);
    switch (Pattern(rule.RecurrenceType)) {
    case Pattern::Weekly: {
        QStringList days;
        const WeekDays chosen = ReadWeeklyDetail(rule.RecurrenceDetail);
        for (int i = 0; i < 7; ++i)
            if (chosen[std::size_t(i)])
                days << weekdayCode(i);
        return u"FREQ=WEEKLY;WKST=SU" + interval + u";BYDAY=" + days.join(u',');
    }
    case Pattern::Monthly: return u"FREQ=MONTHLY" + interval + dayOfMonth(rule, rule.RecurrenceDetail.toInt());
    case Pattern::Yearly: {
        const int month =
            rule.RecurrenceSubtype == 0 ? rule.RecurrenceDetail.toInt() : ReadMonthWeekday(rule.RecurrenceDetail).month;
        return QStringLiteral("FREQ=YEARLY;BYMONTH=%1").arg(month) + dayOfMonth(rule, rule.RecurrenceInterval);
    }
    default:
        return rule.RecurrenceSubtype == 0 ? QString(u"FREQ=DAILY" + interval)
                                           : QStringLiteral("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR");
    }
}

/// Midnight of the day. With dates that have no time, the library never returns from skipping ahead.
icaltimetype icalMidnight(const QDate &date)
{
    icaltimetype time = icaltime_null_time();
    time.year = date.year();
    time.month = date.month();
    time.day = date.day();
    return time;
}

} // namespace

std::vector<RecurrenceRule> sampleRules()
{
    struct Kind
    {
        Pattern pattern;
        qint16 subtype;
    };
    constexpr std::array<Kind, 8> kinds{{{Pattern::Daily, 0},
                                         {Pattern::Daily, 1},
                                         {Pattern::Weekly, 0},
                                         {Pattern::Monthly, 0},
                                         {Pattern::Monthly, 1},
                                         {Pattern::Yearly, 0},
                                         {Pattern::Yearly, 1},
                                         {Pattern::Once, 0}}};
    std::vector<RecurrenceRule> rules;
    for (int i = 0; i < 1000; ++i) {
        const Kind kind = kinds[std::size_t(i) % kinds.size()];
        RecurrenceRule rule;
        rule.TaskDescription = QStringLiteral("Reminder number %1 of the bench").arg(i);
        rule.RecurrenceType = qint16(kind.pattern);
        rule.RecurrenceSubtype = kind.subtype;
        rule.RecurrenceInterval = qint16(kind.pattern == Pattern::Yearly ? 1 + i % 28 : 1 + i / 8 % 9);
        rule.StartDate = QDate(1990, 1 + i % 12, 1 + i % 28);
        rule.EndDate = QDate(2050, 1, 1);
        rule.RecurrenceDetail = detailOf(rule, i);
        rules.push_back(rule);
    }
    return rules;
}

void writeRules(Database &database, const std::vector<RecurrenceRule> &rules)
{
    Database::Transaction whole(database);
    Recordset rows = database.OpenForAppend(QStringLiteral("maintsched"));
    for (const RecurrenceRule &rule : rules) {
        rows.AddNew();
        WriteRule(rows, rule);
        rows.Update();
    }
    whole.commit();
}

Dates soonestTwenty(const std::vector<RecurrenceRule> &rules, const DateRange &range)
{
    Dates twenty;
    for (int i = 0; i < int(rules.size()); ++i)
        walkAll(rules[std::size_t(i)], range, [&](const QDate &date) { keepTwenty(twenty, date, i); });
    return twenty;
}

Dates soonestTwentyByLibical(const std::vector<RecurrenceRule> &rules, const DateRange &range)
{
    Dates twenty;
    for (int i = 0; i < int(rules.size()); ++i) {
        const RecurrenceRule &rule = rules[std::size_t(i)];
        if (rule.is(Pattern::Once)) {
            walkAll(rule, range, [&](const QDate &date) { keepTwenty(twenty, date, i); });
            continue;
        }
        icalrecur_iterator *iterator = icalrecur_iterator_new(
            icalrecurrencetype_from_string(recurrence(rule).toLatin1()), icalMidnight(rule.StartDate));
        icalrecur_iterator_set_start(iterator, icalMidnight(range.from));
        for (icaltimetype at = icalrecur_iterator_next(iterator); !icaltime_is_null_time(at);
             at = icalrecur_iterator_next(iterator)) {
            const QDate date(at.year, at.month, at.day);
            if (date > range.to)
                break;
            keepTwenty(twenty, date, i);
        }
        icalrecur_iterator_free(iterator);
    }
    return twenty;
}

std::vector<Texts> scheduleTexts(const std::vector<RecurrenceRule> &rules, const DateRange &range)
{
    std::vector<Texts> rows;
    for (const RecurrenceRule &rule : rules)
        walkAll(rule, range, [&](const QDate &date) {
            rows.push_back({date.toString(QStringLiteral("dddd MM/dd/yy")), rule.TaskDescription,
                            date.toString(QStringLiteral("yyyyMMdd"))});
        });
    return rows;
}

} // namespace bare
