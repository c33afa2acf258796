// What is due in the next days, a line each, for a terminal, a notification or
// a mail.
#pragma once

class KeepersData;
class UndatedReminders;

/// Prints the reminders of so many days, the first of which is today, soonest
/// first; nothing if none is due.
int TellUpcoming(KeepersData &data, int days);

/// Complains about the reminders whose dates cannot be worked out. Returns
/// DataFault if there are any.
int TellUndated(const UndatedReminders &undated);
