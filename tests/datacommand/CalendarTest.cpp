// The calendar has the dates of the schedule, no more and no less: random rules of all patterns are written, read back
// and expanded by the calendar library.
#include "datacommand/Calendar.h"

#include <map>
#include <random>

#include <libical/ical.h>

#include "CommandFixture.h"
#include "logic/reminders/Occurrences.h"

namespace {

QDate dateOf(const icaltimetype &time)
{
    EXPECT_TRUE(time.is_date) << "an event of a whole day";
    return QDate(time.year, time.month, time.day);
}

struct Event
{
    std::vector<QDate> dates;
    QString uid, recurrence;
    int listed = 0; ///< dates that are listed one by one
};

Event eventOf(icalcomponent *component)
{
    Event event;
    event.uid = icalcomponent_get_uid(component);
    const icaltimetype start = icalcomponent_get_dtstart(component);
    if (icalproperty *rule = icalcomponent_get_first_property(component, ICAL_RRULE_PROPERTY)) {
        icalrecurrencetype recurrence = icalproperty_get_rrule(rule);
        char *text = icalrecurrencetype_as_string_r(&recurrence);
        event.recurrence = text;
        icalmemory_free_buffer(text);
        icalrecur_iterator *iterator = icalrecur_iterator_new(recurrence, start);
        for (icaltimetype at = icalrecur_iterator_next(iterator); !icaltime_is_null_time(at);
             at = icalrecur_iterator_next(iterator))
            event.dates.push_back(dateOf(at));
        icalrecur_iterator_free(iterator);
    } else {
        event.dates.push_back(dateOf(start));
    }
    for (icalproperty *date = icalcomponent_get_first_property(component, ICAL_RDATE_PROPERTY); date;
         date = icalcomponent_get_next_property(component, ICAL_RDATE_PROPERTY)) {
        event.dates.push_back(dateOf(icalproperty_get_rdate(date).time));
        ++event.listed;
    }
    return event;
}

/// The events of a calendar, by their summaries.
std::map<QString, Event> eventsOf(const QByteArray &text)
{
    std::map<QString, Event> events;
    icalcomponent *calendar = icalparser_parse_string(text.constData());
    EXPECT_NE(calendar, nullptr);
    EXPECT_EQ(icalcomponent_count_errors(calendar), 0);
    for (icalcomponent *event = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT); event;
         event = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT))
        EXPECT_TRUE(events.emplace(icalcomponent_get_summary(event), eventOf(event)).second);
    icalcomponent_free(calendar);
    return events;
}

class RandomRules
{
public:
    explicit RandomRules(unsigned seed) : m_random(seed) {}

    RecurrenceRule next()
    {
        RecurrenceRule rule;
        rule.TaskDescription = QString("Task %1").arg(++m_number);
        rule.StartDate = QDate(2026, 3, 14).addDays(pick(-900, 400));
        rule.EndDate = rule.StartDate.addDays(pick(-20, 1500));
        rule.RecurrenceType = qint16(m_number % 5);
        rule.RecurrenceSubtype = qint16(pick(0, 1));
        rule.RecurrenceInterval = qint16(pick(1, 6));
        rule.RecurrenceDetail = detail(rule);
        if (rule.is(Pattern::Yearly) && rule.RecurrenceSubtype == 0)
            rule.RecurrenceInterval = qint16(pick(1, 31));
        return rule;
    }
    int pick(int from, int to) { return from + int(m_random() % unsigned(to - from + 1)); }

private:
    QString detail(const RecurrenceRule &rule)
    {
        switch (Pattern(rule.RecurrenceType)) {
        case Pattern::Weekly: {
            WeekDays days;
            for (bool &day : days)
                day = pick(0, 2) == 0;
            return WeeklyDetail(days);
        }
        case Pattern::Monthly:
            return rule.RecurrenceSubtype == 0 ? QString::number(pick(1, 31)) : MonthlyDetail(pick(0, 4), pick(0, 6));
        case Pattern::Yearly:
            return rule.RecurrenceSubtype == 0 ? QString::number(pick(0, 11))
                                               : YearlyDetail(pick(0, 4), pick(0, 6), pick(0, 11));
        case Pattern::Once: return OnceDetail(QDate(2026, 3, 14).addDays(pick(-100, 900)));
        default: return {};
        }
    }

    std::minstd_rand m_random;
    int m_number = 0;
};

/// Every reminder can be told by a recurrence, except some on days that not every month has.
bool mayBeListed(const RecurrenceRule &rule)
{
    const bool isDay = rule.RecurrenceSubtype == 0;
    return isDay && ((rule.is(Pattern::Monthly) && rule.RecurrenceDetail.toInt() > 28) ||
                     (rule.is(Pattern::Yearly) && rule.RecurrenceInterval > 28));
}

} // namespace

TEST(Calendar, RandomRulesHaveTheDatesOfTheSchedule)
{
    for (unsigned seed = 1; seed <= 2; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RandomRules random(seed);
        const DateRange range{QDate(2026, 3, 14).addDays(random.pick(-300, 300)), QDate(2028, 3, 14)};
        std::vector<CalendarEntry> entries;
        for (int i = 0; i < 400; ++i) {
            CalendarEntry entry{random.next(), {}};
            Walk(entry.rule, scheduleRun, range, DateOrder::MMDDYY,
                 [&](const QDate &date) { entry.dates.push_back(date); });
            std::ranges::sort(entry.dates);
            entries.push_back(entry);
        }
        auto events = eventsOf(MakeCalendar(entries, QDateTime(QDate(2026, 3, 14), QTime(9, 0), Qt::UTC)));
        int listed = 0;
        for (const CalendarEntry &entry : entries) {
            const RecurrenceRule &rule = entry.rule;
            const auto found = events.find(rule.TaskDescription);
            ASSERT_EQ(found != events.end(), !entry.dates.empty()) << rule.TaskDescription.toStdString();
            if (entry.dates.empty())
                continue;
            EXPECT_EQ(found->second.dates, entry.dates)
                << rule.RecurrenceType << rule.RecurrenceSubtype << ' ' << rule.RecurrenceInterval << ' '
                << rule.RecurrenceDetail.toStdString() << ' ' << rule.StartDate.toString(Qt::ISODate).toStdString()
                << ' ' << found->second.recurrence.toStdString();
            listed += found->second.listed > 0;
            EXPECT_TRUE(found->second.listed == 0 || mayBeListed(rule))
                << rule.RecurrenceType << rule.RecurrenceSubtype << ' ' << rule.RecurrenceInterval << ' '
                << rule.RecurrenceDetail.toStdString();
        }
        EXPECT_LT(listed, 80) << "most have a recurrence";
    }
}

TEST(Calendar, WeeksBeginOnTheFirstDayOfTheReminder)
{
    // Every two weeks from a Wednesday on Monday and Thursday: the Monday belongs to the week of the Thursday before.
    RecurrenceRule rule;
    rule.TaskDescription = "Task";
    rule.StartDate = QDate(2026, 3, 18);
    rule.EndDate = QDate(2026, 5, 1);
    rule.RecurrenceType = qint16(Pattern::Weekly);
    rule.RecurrenceInterval = 2;
    rule.RecurrenceDetail = "0100100";
    CalendarEntry entry{rule, {}};
    Walk(rule, scheduleRun, {QDate(2026, 1, 1), QDate(2028, 1, 1)}, DateOrder::MMDDYY,
         [&](const QDate &date) { entry.dates.push_back(date); });
    std::ranges::sort(entry.dates);
    ASSERT_EQ(entry.dates[1], QDate(2026, 3, 23));
    const QByteArray text = MakeCalendar({&entry, 1}, QDateTime(QDate(2026, 3, 14), QTime(9, 0), Qt::UTC));
    EXPECT_TRUE(text.contains("WKST=")) << text.toStdString();
    EXPECT_FALSE(text.contains("WKST=SU")) << text.toStdString();
    EXPECT_EQ(eventsOf(text)["Task"].dates, entry.dates);
}

struct CalendarFile : CommandTest
{
    QByteArray content() { return contentOf(folder.path())["r.ics"]; }
    Told write(const QStringList &more = {}) { return run(QStringList{"calendar", path("r.ics")} + more); }
};

TEST_F(CalendarFile, EventsKeepTheirIdentityAndTheirTexts)
{
    addReminder(QString::fromUtf8("Корм; 50 % \\ a, b 🐟 and a very long line that has to be folded somewhere"),
                "2026-03-01", "2026-12-31", 3);
    addReminder("Over", "2020-01-01", "2020-02-01", 1);
    Told told = write();
    EXPECT_EQ(told.status, 0) << told.err.toStdString();
    EXPECT_EQ(told.out, "1 reminder was written to " + path("r.ics") + ".\n");
    const auto first = eventsOf(content());
    ASSERT_EQ(first.size(), 1u);
    EXPECT_EQ(first.begin()->first,
              QString::fromUtf8("Корм; 50 % \\ a, b 🐟 and a very long line that has to be folded somewhere"));
    EXPECT_EQ(first.begin()->second.dates.front(), QDate(2026, 3, 16));
    EXPECT_EQ(first.begin()->second.recurrence, "FREQ=DAILY;UNTIL=20261229;INTERVAL=3");
    EXPECT_TRUE(content().contains("DESCRIPTION:Every 3 days.\r\n"));
    for (const QByteArray &line : content().split('\n'))
        EXPECT_LE(line.size(), 76) << line.toStdString();

    change("UPDATE MAINTSCHED SET SchedInterval = 4");
    told = write({"--from", "2026-03-01", "--to", "2026-03-09"});
    const auto second = eventsOf(content());
    EXPECT_EQ(second.begin()->second.uid, first.begin()->second.uid);
    EXPECT_EQ(second.begin()->second.dates, (std::vector{QDate(2026, 3, 1), QDate(2026, 3, 5), QDate(2026, 3, 9)}));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2) << "no file is left over";
}

TEST_F(CalendarFile, WhatCannotBeWrittenIsToldAndNothingElseIsReplaced)
{
    addReminder("Feed", "2026-03-01", "2026-12-31", 3);
    const auto before = contentOf(folder.path());
    Told told = run({"calendar", path("OM.MDB")});
    EXPECT_EQ(told.status, 1);
    EXPECT_TRUE(told.err.contains("is no calendar")) << told.err.toStdString();
    EXPECT_EQ(contentOf(folder.path()), before);
    EXPECT_EQ(run({"calendar", path("none/r.ics")}).status, 1);
    EXPECT_EQ(write({"--from", "2026-03-09", "--to", "2026-03-01"}).status, 2);
    EXPECT_EQ(write({"--from", "03/09/2026"}).status, 2);
    EXPECT_EQ(contentOf(folder.path()), before);

    change("UPDATE MAINTSCHED SET SchedEndDate = NULL");
    addReminder("Clean", "2026-03-01", "2026-12-31", 3);
    told = write();
    EXPECT_EQ(told.status, 1) << "a reminder is missing";
    EXPECT_TRUE(told.err.contains("Feed (it has no end date)")) << told.err.toStdString();
    EXPECT_EQ(eventsOf(content()).size(), 1u);
}
