// The floors of the reminder figures: a thousand rules of all patterns, expanded without windows or a database, once by
// the simple algorithm of the fuzz target and once by a calendar library.
#pragma once

#include <map>
#include <vector>

#include "logic/reminders/Occurrences.h"
#include "logic/reminders/RecurrenceRule.h"

class Database;

namespace bare {

/// A thousand rules of all patterns, each starting in 1990.
std::vector<RecurrenceRule> sampleRules();
void writeRules(Database &database, const std::vector<RecurrenceRule> &rules);

/// Dates with the number of their rule, soonest first.
using Dates = std::multimap<QDate, int>;

/// The twenty soonest dates of all rules in the range.
Dates soonestTwenty(const std::vector<RecurrenceRule> &rules, const DateRange &range);
/// The same, expanded by the calendar library, which skips ahead to the start of the range.
Dates soonestTwentyByLibical(const std::vector<RecurrenceRule> &rules, const DateRange &range);

/// The texts of one row of the schedule: the date with its weekday, the task, and the sorting key.
struct Texts
{
    QString shown, task, key;
};
/// One row for each date of each rule in the range.
std::vector<Texts> scheduleTexts(const std::vector<RecurrenceRule> &rules, const DateRange &range);

} // namespace bare
