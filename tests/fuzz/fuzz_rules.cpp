// Fuzzes the columns of a stored reminder: its rule is read, walked in all three runs, compared with a second walk that
// is slow and literal, shown in the editor, and stored again.
#include <QRegularExpression>

#include "Fuzzing.h"
#include "LiteralWalk.h"
#include "logic/reminders/Occurrences.h"
#include "logic/reminders/RuleFields.h"
#include "store/Database.h"
#include "store/NewDatabase.h"

namespace {

constexpr int longestDays = 60 * 366; // the longest range of a rule, so that an input takes milliseconds

/// Writes the row to a database and reads it back, so that the columns convert its values as they do for a keeper.
std::vector<RecurrenceRule> readBack(const Parameters &values)
{
    static const auto database = [] {
        CreateDatabase(scratchPath("OM.MDB"));
        return Database::OpenDatabase(scratchPath("OM.MDB"));
    }();
    static Database::Transaction unfinished(*database); // never committed, so that nothing waits for a disk
    database->Execute("DELETE FROM MAINTSCHED");
    database->Execute("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, SchedRtype, "
                      "SchedRSubtype, SchedDetailText, SchedEnglishDesc) VALUES (?, ?, ?, ?, ?, ?, ?, ?)",
                      values);
    return ReadRules(*database->OpenRecordset("SELECT * FROM maintsched").rows());
}

Walked walk(const RecurrenceRule &rule, const OccurrenceRun &run, const DateRange &range, DateOrder order)
{
    Walked walked;
    walked.failed =
        Walk(rule, run, range, order, [&walked](const QDate &date) { walked.dates.push_back(date); }).has_value();
    FUZZ_REQUIRE(!walked.failed || walked.dates.empty(), rule.RecurrenceDetail);
    return walked;
}

/// The second walk reads a month as a name for the preview, and as a number for the other two runs.
void checkWalks(const RecurrenceRule &rule, const DateRange &range, DateOrder order)
{
    const Walked preview = walk(rule, previewRun, range, order), schedule = walk(rule, scheduleRun, range, order);
    FUZZ_REQUIRE(schedule == walk(rule, upcomingRun, range, order), rule.RecurrenceDetail);
    static const QRegularExpression plain("^(0[01] .*|1[01] [01]{7}|20 \\d{1,2}|21 \\d\\d|30 \\d{1,2}|31 \\d{4})$",
                                          QRegularExpression::DontCaptureOption);
    const QString form = QString("%1%2 ").arg(rule.RecurrenceType).arg(rule.RecurrenceSubtype) + rule.RecurrenceDetail;
    if (rule.StartDate.year() <= 1000 || !rule.EndDate.isValid() || !plain.match(form).hasMatch())
        return; // the second walk is not made for it
    Walked listed = LiteralWalk(rule, false).result;
    std::erase_if(listed.dates, [&range](QDate d) { return d < range.from || d > range.to; });
    FUZZ_REQUIRE(preview == LiteralWalk(rule, true).result && schedule == listed, rule.RecurrenceDetail);
}

/// A rule of a known pattern in which the editor finds no fault must have the same dates when it is stored again.
void checkEditor(const RecurrenceRule &rule, const DateConventions &conventions)
{
    EditorFields fields;
    ShowRecurrence(rule, conventions, fields);
    RecurrenceRule again = rule;
    StoreRecurrence(fields, conventions, again);
    const bool isKnown =
        rule.RecurrenceType == again.RecurrenceType && rule.RecurrenceSubtype == again.RecurrenceSubtype;
    if (EditFault(fields, conventions) || !isKnown)
        return;
    const Walked walked = walk(again, previewRun, {}, conventions.order);
    FUZZ_REQUIRE(walk(rule, previewRun, {}, conventions.order) == walked, again.RecurrenceDetail);
    FUZZ_REQUIRE(MakePreview(fields, conventions).dates == walked.dates, again.RecurrenceDetail);
}

} // namespace

void fuzz(Input &input)
{
    constexpr DateOrder orders[] = {DateOrder::MMDDYY, DateOrder::DDMMYY, DateOrder::YYMMDD};
    const DateOrder order = orders[input.choice(3)];
    const DateConventions conventions{order, MakeDatePicture(order, QString("/-.").at(input.choice(3)))};
    const QDate from = QDate(1990, 1, 1).addDays(input.number(2));
    const DateRange range{from, from.addDays(input.choice(256) * 4)};
    input.line();
    Parameters values;
    for (int column = 0; column < 8; ++column) {
        const QString text = input.line();
        values.push_back(text.isEmpty() ? Value() : Value(text)); // the column makes a number of it if it can
    }
    for (RecurrenceRule &rule : readBack(values)) {
        if (rule.StartDate.isValid() && rule.StartDate.daysTo(rule.EndDate) > longestDays)
            rule.EndDate = rule.StartDate.addDays(longestDays);
        checkWalks(rule, range, order);
        checkEditor(rule, conventions);
    }
}
