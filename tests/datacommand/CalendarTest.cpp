// The calendar has the dates of the schedule, no more and no less: it is read back and expanded by the calendar
// library.
#include "datacommand/Calendar.h"

#include <map>

#include <libical/ical.h>

#include "CommandFixture.h"
#include "logic/reminders/Occurrences.h"

namespace {

struct Event
{
    std::vector<QDate> dates;
    QString uid;
    bool isListed; ///< its dates are listed one by one
};

std::vector<QDate> datesOf(icalcomponent *event)
{
    std::vector<QDate> dates;
    icalcomponent_foreach_recurrence(
        event, icaltime_from_string("20200101"), icaltime_from_string("20400101"),
        [](icalcomponent *, icaltime_span *span, void *to) {
            static_cast<std::vector<QDate> *>(to)->push_back(
                QDateTime::fromSecsSinceEpoch(span->start, Qt::UTC).date());
        },
        &dates);
    std::ranges::sort(dates);
    return dates;
}

/// The events of a calendar, by their summaries.
std::map<QString, Event> eventsOf(const QByteArray &text)
{
    std::map<QString, Event> events;
    icalcomponent *calendar = icalparser_parse_string(text.constData());
    EXPECT_EQ(icalcomponent_count_errors(calendar), 0);
    for (icalcomponent *event = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT); event;
         event = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT)) {
        const bool isListed = icalcomponent_count_properties(event, ICAL_RDATE_PROPERTY) > 0;
        EXPECT_TRUE(icalcomponent_get_dtstart(event).is_date) << "an event of a whole day";
        events[icalcomponent_get_summary(event)] = {datesOf(event), icalcomponent_get_uid(event), isListed};
    }
    icalcomponent_free(calendar);
    return events;
}

} // namespace

struct CalendarFile : CommandTest
{
    QByteArray content() { return contentOf(folder.path())["r.ics"]; }
    Told write(const QStringList &more = {}) { return run(QStringList{"calendar", path("r.ics")} + more); }
};

TEST_F(CalendarFile, RemindersOfEveryPatternHaveTheDatesOfTheSchedule)
{
    const struct
    {
        Pattern pattern;
        qint16 subtype, interval;
        QString detail;
        bool mayBeListed = false; ///< on a day that not every month has; all others must have a recurrence
    } rows[] = {
        {Pattern::Daily, 0, 1, ""},
        {Pattern::Daily, 0, 5, ""},
        {Pattern::Daily, 1, 1, ""},
        {Pattern::Weekly, 0, 1, "0101001"},
        {Pattern::Weekly, 0, 2, "0100100"}, // the weeks begin on the weekday of
                                            // the first day
        {Pattern::Weekly, 0, 3, "1000011"},
        {Pattern::Weekly, 0, 1, "0000000"},
        {Pattern::Monthly, 0, 1, "1"},
        {Pattern::Monthly, 0, 3, "28"},
        {Pattern::Monthly, 0, 1, "31", true},
        {Pattern::Monthly, 1, 1, "06"},
        {Pattern::Monthly, 1, 2, "31"},
        {Pattern::Monthly, 1, 5, "43"},
        {Pattern::Yearly, 0, 28, "1"},
        {Pattern::Yearly, 0, 30, "11", true},
        {Pattern::Yearly, 1, 1, "4511"},
        {Pattern::Yearly, 1, 1, "0100"},
        {Pattern::Once, 0, 1, "11/24/26"},
    };
    std::vector<CalendarEntry> entries;
    std::map<QString, bool> mayBeListed;
    for (const auto &row : rows)
        for (int i = 0; i < 40; ++i) {
            const QDate start = QDate(2025, 1, 1).addDays(17 * i), end = start.addDays(37 * i);
            const QString name = QString("%1/%2").arg(&row - rows).arg(i);
            CalendarEntry entry{{name, start, end, row.interval, qint16(row.pattern), row.subtype, row.detail, {}}, {}};
            Walk(entry.rule, scheduleRun, {QDate(2025, 11, 20), QDate(2028, 3, 14)}, DateOrder::MMDDYY,
                 [&](const QDate &date) { entry.dates.push_back(date); });
            std::ranges::sort(entry.dates);
            entries.push_back(entry);
            mayBeListed[name] = row.mayBeListed;
        }
    auto events = eventsOf(MakeCalendar(entries, QDateTime(QDate(2026, 3, 14), QTime(9, 0), Qt::UTC)));
    for (const CalendarEntry &entry : entries) {
        const QString &name = entry.rule.TaskDescription;
        ASSERT_EQ(events.contains(name), !entry.dates.empty()) << name.toStdString();
        EXPECT_EQ(events[name].dates, entry.dates) << name.toStdString();
        EXPECT_LE(events[name].isListed, mayBeListed[name]) << name.toStdString();
    }
}

TEST_F(CalendarFile, EventsKeepTheirIdentityAndTheirTexts)
{
    const QString task = QString::fromUtf8("Корм; 50 % \\ a, b 🐟 and a very long line that has to be folded somewhere");
    addReminder(task, "2026-03-01", "2026-12-31", 3);
    addReminder("Over", "2020-01-01", "2020-02-01", 1);
    EXPECT_EQ(write().out, "1 reminder was written to " + path("r.ics") + ".\n");
    auto first = eventsOf(content());
    ASSERT_EQ(first.size(), 1u);
    EXPECT_EQ(first[task].dates.front(), QDate(2026, 3, 16));
    for (const char *line : {"DTSTART;VALUE=DATE:20260316\r\n", "RRULE:FREQ=DAILY;UNTIL=20261229;INTERVAL=3\r\n",
                             "DESCRIPTION:Every 3 days.\r\n"})
        EXPECT_TRUE(content().contains(line)) << content().toStdString();
    for (const QByteArray &line : content().split('\n'))
        EXPECT_LE(line.size(), 76) << line.toStdString();

    change("UPDATE MAINTSCHED SET SchedInterval = 4");
    write({"--from", "2026-03-01", "--to", "2026-03-09"});
    auto second = eventsOf(content());
    EXPECT_EQ(second[task].uid, first[task].uid);
    EXPECT_EQ(second[task].dates, (std::vector{QDate(2026, 3, 1), QDate(2026, 3, 5), QDate(2026, 3, 9)}));
    EXPECT_EQ(contentOf(folder.path()).size(), 2u) << "no file is left over";
}

TEST_F(CalendarFile, WhatCannotBeWrittenIsToldAndNothingElseIsReplaced)
{
    addReminder("Feed", "2026-03-01", "2026-12-31", 3);
    const auto before = contentOf(folder.path());
    expectFailure({"calendar", path("OM.MDB")}, "is no calendar");
    expectFailure({"calendar", path("none/r.ics")}, "could not be written");
    EXPECT_EQ(write({"--from", "2026-03-09", "--to", "2026-03-01"}).status, 2);
    EXPECT_EQ(write({"--from", "03/09/2026"}).status, 2);
    EXPECT_EQ(contentOf(folder.path()), before);

    change("UPDATE MAINTSCHED SET SchedEndDate = NULL");
    addReminder("Clean", "2026-03-01", "2026-12-31", 3);
    expectFailure({"calendar", path("r.ics")}, "Feed (it has no end date)");
    EXPECT_EQ(eventsOf(content()).size(), 1u);
}
