// One run over all reminders: reads them, walks each within the two years from today or another range, tells on the way
// what it is at, and leaves out those without dates. The toolbar's list and the schedule differ in what they do with a
// date. Window events are let in now and then, but no key and no click, so that nothing can change or close what the
// run works on.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QString>

#include "logic/reminders/Occurrences.h"
#include "logic/reminders/RecurrenceRule.h"
#include "logic/reminders/UndatedReminders.h"

struct Globals;

/// All reminders, in the order of the table. Throws RuntimeFailure.
std::vector<RecurrenceRule> LoadReminders(Globals &globals);

struct ReminderRun
{
    const OccurrenceRun &run;
    std::optional<DateRange> range;                               ///< nothing: two years from today
    std::function<void(const QDate &, int rule)> send;            ///< each date, with the position of its rule
    std::function<void(const QString &panel, int rule)> progress; ///< a few times a second
};
/// Walks the rules, and gives those that have no dates.
UndatedReminders RunReminders(Globals &globals, const std::vector<RecurrenceRule> &rules, const ReminderRun &run);
