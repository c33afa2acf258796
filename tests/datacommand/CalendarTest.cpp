// The calendar has the dates of the schedule, no more and no less: rules of all patterns are written, read back and
// expanded by the calendar library.
#include "datacommand/Calendar.h"

#include <map>

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

struct Rule
{
    Pattern pattern;
    int variant, interval;
    const char *detail;
    bool mayBeListed = false; ///< date by date, where the weeks or months of a calendar are not the reminder's
};

constexpr Rule rules[] = {
    {Pattern::Daily, 0, 3, ""},          {Pattern::Daily, 1, 1, ""},
    {Pattern::Weekly, 0, 1, "0100100"},  {Pattern::Weekly, 0, 2, "0100100", true},
    {Pattern::Monthly, 0, 2, "15"},      {Pattern::Monthly, 0, 1, "31", true},
    {Pattern::Monthly, 1, 1, "01"},      {Pattern::Monthly, 1, 3, "46"},
    {Pattern::Yearly, 0, 5, "3"},        {Pattern::Yearly, 0, 29, "2", true},
    {Pattern::Yearly, 1, 1, "4510"},     {Pattern::Once, 0, 1, "07/04/2026"},
    {Pattern::Once, 0, 1, "07/04/2050"},
};

} // namespace

TEST(Calendar, EveryPatternHasTheDatesOfTheSchedule)
{
    const DateRange range{QDate(2026, 1, 10), QDate(2028, 3, 14)};
    std::vector<CalendarEntry> entries;
    for (const QDate start : {QDate(2026, 3, 18), QDate(2024, 1, 31)}) // a Wednesday, and before the range
        for (const Rule &row : rules) {
            const QString name = QString("Task %1").arg(entries.size());
            CalendarEntry entry{{name,
                                 start,
                                 QDate(2027, 12, 1),
                                 qint16(row.interval),
                                 qint16(row.pattern),
                                 qint16(row.variant),
                                 row.detail,
                                 {}},
                                {}};
            Walk(entry.rule, scheduleRun, range, DateOrder::MMDDYY,
                 [&](const QDate &date) { entry.dates.push_back(date); });
            std::ranges::sort(entry.dates);
            entries.push_back(entry);
        }
    auto events = eventsOf(MakeCalendar(entries, QDateTime(QDate(2026, 3, 14), QTime(9, 0), Qt::UTC)));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const Event &event = events[entries[i].rule.TaskDescription];
        EXPECT_EQ(event.dates, entries[i].dates) << i << ' ' << event.recurrence.toStdString();
        EXPECT_TRUE(event.listed == 0 || rules[i % std::size(rules)].mayBeListed) << i;
    }
    EXPECT_EQ(events[entries.back().rule.TaskDescription].uid, "") << "without a date, there is no event";
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
