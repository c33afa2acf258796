// What a reminder needs besides its interval, as words: a spreadsheet would turn the digits that are stored into a
// number and lose their zeros. Weekly "Monday, Thursday"; monthly on a weekday "First Monday"; yearly on a date "March"
// (the interval is the day), on a weekday "Last Friday of November"; once the date. All else is the stored text itself.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QDate>
#include <QString>

#include "logic/reminders/RecurrenceRule.h"
#include "text/Dates.h"

/// The rule's detail in words, or as it is stored where it has none. `dateOrder` is the user's.
QString DetailInWords(const RecurrenceRule &rule, DateOrder dateOrder);

/// Reads the words for the rule's pattern and returns the detail that is stored; nothing if they are none. Names may be
/// cut to three letters. `readDate` reads the date of a reminder that occurs once.
std::optional<QString> DetailFromWords(const RecurrenceRule &rule, const QString &words,
                                       const std::function<std::optional<QDate>(const QString &)> &readDate);

/// What the words of the rule's pattern are like, for a message.
QString ExampleOfDetail(const RecurrenceRule &rule);

/// What the reminder editor finds wrong with a rule.
struct RuleComplaint
{
    const char *column; ///< of reminders.csv
    QString text;
};
/// Finds what is wrong with a rule, or brings its detail and an empty sentence into the form that the editor stores.
std::optional<RuleComplaint> CompleteRule(RecurrenceRule &rule, const DateConventions &dates);
