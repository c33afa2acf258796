// Runs over all reminders: works out the dates of each within two years from today or another range, reports its
// progress, and leaves out reminders without dates. The toolbar's list and the schedule differ in what they do with a
// date. Window events are processed now and then, but no key and no click, so that nothing can change or close what the
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
    std::optional<DateRange> range;                    ///< two years from today if not set
    std::function<void(const QDate &, int rule)> send; ///< called for each date, with the position of its rule
    std::function<void(const QString &panel, int rule)> progress; ///< called a few times a second
};
/// Works out the dates of the rules, and returns the rules that have none.
UndatedReminders RunReminders(Globals &globals, const std::vector<RecurrenceRule> &rules, const ReminderRun &run);
