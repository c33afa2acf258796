// The verb upcoming: prints what is due in the next days, for a terminal, a notification or a mail.
#pragma once

class KeepersData;
class UndatedReminders;

/// Prints one line for each reminder that is due within so many days, beginning with today, soonest first.
int TellUpcoming(KeepersData &data, int days);

/// Reports the reminders whose dates cannot be worked out. Returns DataFault if there are any.
int TellUndated(const UndatedReminders &undated);
