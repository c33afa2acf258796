// The floors of the reminders: a thousand rules of all patterns as plain numbers, walked day number by day number
// without windows, database or Qt. The same rules stand in a database for ours.
#pragma once

#include <functional>
#include <string>
#include <vector>

class Database;

namespace bare {

/// Days since 1 January 1970.
using Day = int;

struct Rule
{
    int pattern; ///< 0 daily to 4 once, as it is stored
    int subtype;
    int interval; ///< yearly on a date: the day of the month
    Day start;
    Day end;
    std::string days;     ///< weekly: "0" or "1" a day from Sunday
    int ordinal, weekday; ///< of the month
    int monthDay;         ///< monthly on a date
    int month;            ///< yearly, as the lists read it: 1 to 12
    Day once;
    std::string task;
};

/// A thousand rules, each begun in 1990.
std::vector<Rule> sampleRules();
void writeRules(Database &database, const std::vector<Rule> &rules);

/// Every date of the rule from its start on, those within the two days handed over.
void walk(const Rule &rule, Day from, Day to, const std::function<void(Day)> &send);

/// The soonest twenty of all rules.
std::vector<std::pair<Day, int>> soonestTwenty(const std::vector<Rule> &rules, Day from, Day to);

/// Date with weekday, task and sorting key of each date, rule by rule.
struct Texts
{
    std::string shown, task, key;
};
std::vector<Texts> scheduleTexts(const std::vector<Rule> &rules, Day from, Day to);

/// The soonest twenty by the calendar library, with its skip ahead.
std::vector<std::pair<Day, int>> soonestTwentyByLibical(const std::vector<Rule> &rules, Day from, Day to);

} // namespace bare
