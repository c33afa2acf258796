// The calendar has the dates of the schedule, no more and no less. It is made with a recurrence only if the calendar
// library expands that to the dates of the schedule, so that it is enough here to see which recurrence it is.
#include "CommandFixture.h"

struct Calendar : CommandTest
{
    QByteArray content() { return contentOf(folder.path())["r.ics"].replace("\r\n ", ""); }
    /// The rest of the line that begins with this; empty if there are none or several.
    QString valueOf(const QString &name)
    {
        const QStringList lines = QString::fromUtf8("\r\n" + content()).split("\r\n" + name);
        return lines.size() == 2 ? lines[1].section("\r\n", 0, 0) : QString();
    }
    /// The first day, the recurrence, and how many further days are listed.
    QString days()
    {
        return QString("%1 %2 %3")
            .arg(valueOf("DTSTART;VALUE=DATE:"), valueOf("RRULE:"))
            .arg(content().count("\r\nRDATE"));
    }
    Told write(const QStringList &more = {}) { return run(QStringList{"calendar", path("r.ics")} + more); }
};

TEST_F(Calendar, EveryPatternHasItsRecurrence)
{
    const std::pair<QString, QString> rows[] = {
        // pattern, variant, interval and detail of the reminder
        {"0, 0, 5, ''", "20260318 FREQ=DAILY;UNTIL=20280312;INTERVAL=5 0"},
        {"0, 1, 1, ''", "20260318 FREQ=WEEKLY;UNTIL=20280314;BYDAY=MO,TU,WE,TH,FR;WKST=SU 0"},
        {"1, 0, 1, '0101001'", "20260318 FREQ=WEEKLY;UNTIL=20280313;BYDAY=MO,WE,SA;WKST=SU 0"},
        // Weeks that begin on Sunday would not do: Monday belongs to the week of the Wednesday before.
        {"1, 0, 2, '0100100'", "20260319 FREQ=WEEKLY;UNTIL=20280306;INTERVAL=2;BYDAY=TH,MO;WKST=TU 0"},
        {"2, 0, 3, '28'", "20260328 FREQ=MONTHLY;UNTIL=20271228;INTERVAL=3;BYMONTHDAY=28 0"},
        {"2, 0, 1, '31'", "20260331  23"}, // a day that not every month has
        {"2, 1, 1, '06'", "20260404 FREQ=MONTHLY;UNTIL=20280304;BYDAY=1SA 0"},
        {"2, 1, 2, '43'", "20260325 FREQ=MONTHLY;UNTIL=20280126;INTERVAL=2;BYDAY=-1WE 0"},
        {"3, 0, 28, '1'", "20270128 FREQ=YEARLY;UNTIL=20280128;BYMONTHDAY=28;BYMONTH=1 0"},
        {"3, 1, 1, '4511'", "20261127 FREQ=YEARLY;UNTIL=20271126;BYDAY=-1FR;BYMONTH=11 0"},
        {"4, 0, 1, '11/24/26'", "20261124  0"},
    };
    for (const auto &[rule, expected] : rows) {
        change("DELETE FROM MAINTSCHED");
        change("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedRtype, SchedRSubtype, "
               "SchedInterval, SchedDetailText) VALUES ('Task', '2026-03-18', '2029-03-14', " +
               rule + ")");
        write();
        EXPECT_EQ(days(), expected);
    }
}

TEST_F(Calendar, EventsKeepTheirIdentityAndTheirTexts)
{
    addReminder(QString::fromUtf8("Корм; 50 % \\ a, b 🐟 and a very long line that has to be folded somewhere"),
                "2026-03-01", "2026-12-31", 3);
    addReminder("Over", "2020-01-01", "2020-02-01", 1);
    EXPECT_EQ(write().out, "1 reminder was written to " + path("r.ics") + ".\n");
    EXPECT_EQ(valueOf("SUMMARY:"),
              QString::fromUtf8("Корм\\; 50 % \\\\ a\\, b 🐟 and a very long line that has to be folded somewhere"));
    EXPECT_EQ(days(), "20260316 FREQ=DAILY;UNTIL=20261229;INTERVAL=3 0");
    EXPECT_EQ(valueOf("DESCRIPTION:"), "Every 3 days.");
    const QString uid = valueOf("UID:");

    change("UPDATE MAINTSCHED SET SchedInterval = 4");
    write({"--from", "2026-03-01", "--to", "2026-03-09"});
    EXPECT_EQ(valueOf("UID:"), uid);
    EXPECT_EQ(days(), "20260301 FREQ=DAILY;UNTIL=20260309;INTERVAL=4 0");
    EXPECT_EQ(contentOf(folder.path()).size(), 2u) << "no file is left over";
}

TEST_F(Calendar, WhatCannotBeWrittenIsToldAndNothingElseIsReplaced)
{
    addReminder("Feed", "2026-03-01", "2026-12-31", 3);
    const auto before = contentOf(folder.path());
    expectFailure({"calendar", path("OM.MDB")}, "is not a calendar");
    expectFailure({"calendar", path("none/r.ics")}, "could not be written");
    EXPECT_EQ(write({"--from", "2026-03-09", "--to", "2026-03-01"}).status, 2);
    EXPECT_EQ(write({"--from", "03/09/2026"}).status, 2);
    EXPECT_EQ(contentOf(folder.path()), before);

    change("UPDATE MAINTSCHED SET SchedEndDate = NULL");
    addReminder("Clean", "2026-03-01", "2026-12-31", 3);
    expectFailure({"calendar", path("r.ics")}, "Feed (it has no end date)");
    EXPECT_EQ(valueOf("SUMMARY:"), "Clean");
}
