// The detail of a reminder in words, for CSV files: a spreadsheet would turn the stored digits into a number and lose
// their zeros. A weekly reminder has "Monday, Thursday", a monthly one on a weekday "First Monday", a yearly one on a
// date "March" (the interval is the day) and on a weekday "Last Friday of November", and one that occurs once its date.
// In all other cases, the words are the stored text.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QDate>
#include <QString>

#include "logic/reminders/RecurrenceRule.h"
#include "text/Dates.h"

/// The rule's detail in words, or as it is stored if the words would not read back to it. `dateOrder` is the user's.
QString DetailInWords(const RecurrenceRule &rule, DateOrder dateOrder);

/// Reads the words for the rule's pattern and returns the detail to be stored, or nothing if the words are wrong. Names
/// may be shortened to three letters. `readDate` reads the date of a reminder that occurs once.
std::optional<QString> DetailFromWords(const RecurrenceRule &rule, const QString &words,
                                       const std::function<std::optional<QDate>(const QString &)> &readDate);

/// An example of the words for the rule's pattern, for a message.
QString ExampleOfDetail(const RecurrenceRule &rule);

/// What the reminder editor finds wrong with a rule.
struct RuleComplaint
{
    const char *column; ///< of reminders.csv
    QString text;
};
/// Returns what is wrong with a rule. If nothing is, gives it the detail and the sentence that the editor would store.
std::optional<RuleComplaint> CompleteRule(RecurrenceRule &rule, const DateConventions &dates);
