// The reminders as an iCalendar file (RFC 5545) for any calendar program: one event for each reminder, on exactly the
// days that the schedule shows for the same range. If a recurrence rule gives exactly these days, the event has that
// rule; otherwise it lists the days. Events keep their identity, so a calendar that reads the file again replaces them.
#pragma once

#include <span>
#include <vector>

#include <QByteArray>
#include <QDate>
#include <QString>

#include "logic/reminders/RecurrenceRule.h"

class KeepersData;

/// A reminder and its days in the range, in order.
struct CalendarEntry
{
    RecurrenceRule rule;
    std::vector<QDate> dates;
};

/// The text of the file. Entries without dates are left out.
QByteArray MakeCalendar(std::span<const CalendarEntry> entries, const QDateTime &now);

/// Writes the file; if that fails, an existing file does not change. An invalid `from` means today, an invalid `to` two
/// years later. Reports reminders without dates and then returns DataFault. Throws RuntimeFailure.
int WriteCalendar(KeepersData &data, const QString &fileName, const QDate &from, const QDate &to);
