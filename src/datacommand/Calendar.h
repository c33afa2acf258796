// The reminders as an iCalendar file (RFC 5545) for any calendar program: one event for each reminder, on exactly the
// days that the schedule shows for the same range. If a recurrence rule gives exactly these days, the event has that
// rule; otherwise it lists the days. Events keep their identity, so a calendar that reads the file again replaces them.
#pragma once

#include <QDate>
#include <QString>

class KeepersData;

/// Writes the file; if that fails, an existing file does not change. An invalid `from` means today, an invalid `to` two
/// years later. Reports reminders without dates and then returns DataFault. Throws RuntimeFailure.
int WriteCalendar(KeepersData &data, const QString &fileName, const QDate &from, const QDate &to);
