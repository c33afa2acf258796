// Fuzzes the columns of a stored reminder: its rule is read, walked in all three runs and compared with the second
// walk, shown in the editor, and stored again.
#include <algorithm>

#include "Fuzzing.h"
#include "LiteralWalk.h"
#include "logic/reminders/Occurrences.h"
#include "logic/reminders/RuleFields.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Database.h"
#include "store/NewDatabase.h"

namespace {

constexpr int longestDays = 60 * 366; // the longest range of a rule, so that an input takes milliseconds

/// A stored value: "" is Null, "i5" a whole number, "f5" a number, all else a text.
Value stored(const QString &text)
{
    const QString rest = text.mid(1);
    switch (text.isEmpty() ? 0 : text[0].unicode()) {
    case 0: return {};
    case u'i': return rest.toLongLong();
    case u'f': return rest.toDouble();
    default: return text;
    }
}

/// Writes the row to a database and reads it back, so that the columns convert its values as they do for a keeper.
std::vector<RecurrenceRule> readBack(const Parameters &values)
{
    static const auto database = [] {
        CreateDatabase(scratchPath(QStringLiteral("OM.MDB")));
        return Database::OpenDatabase(scratchPath(QStringLiteral("OM.MDB")));
    }();
    static Database::Transaction unfinished(*database); // never committed, so that nothing waits for a disk
    database->Execute(QStringLiteral("DELETE FROM MAINTSCHED"));
    database->Execute(QStringLiteral("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, "
                                     "SchedRtype, SchedRSubtype, SchedDetailText, SchedEnglishDesc) "
                                     "VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
                      values);
    return ReadRules(*database->OpenRecordset(QStringLiteral("SELECT * FROM maintsched")).rows());
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
    Walked named = preview, listed = preview; // a single date has no second walk
    if (LiteralWalk::canRead(rule)) {
        named = LiteralWalk(rule, true).result;
        listed = LiteralWalk(rule, false).result;
    } else if (!rule.is(Pattern::Once)) {
        return;
    }
    std::erase_if(listed.dates, [&range](QDate d) { return d < range.from || d > range.to; });
    FUZZ_REQUIRE(preview == named && schedule == listed, rule.RecurrenceDetail);
}

/// If the editor shows a rule and finds no fault in it, it must store a rule with the same dates and show it again in
/// the same words.
void checkEditor(const RecurrenceRule &rule, const DateConventions &conventions)
{
    EditorFields fields;
    try {
        ShowRecurrence(rule, conventions, fields);
    } catch (const RuntimeFailure &failure) {
        FUZZ_REQUIRE(failure.number() == Failure::TypeMismatch, failure.description());
        return;
    }
    RecurrenceRule again = rule;
    StoreRecurrence(fields, conventions, again);
    const bool known = rule.RecurrenceType >= 0 && rule.RecurrenceType <= qint16(Pattern::Once) &&
                       (rule.RecurrenceSubtype == 0 || rule.RecurrenceSubtype == 1);
    if (EditFault(fields, conventions) || !known)
        return;
    const Walked walked = walk(again, previewRun, {}, conventions.order);
    FUZZ_REQUIRE(walk(rule, previewRun, {}, conventions.order) == walked, again.RecurrenceDetail);
    FUZZ_REQUIRE(MakePreview(fields, conventions).dates == walked.dates, again.RecurrenceDetail);
    EditorFields shown = fields;
    ShowRecurrence(again, conventions, shown);
    FUZZ_REQUIRE(EnglishSentence(shown) == EnglishSentence(fields), EnglishSentence(shown));
}

} // namespace

void fuzz(Input &input, ScriptedDoors &)
{
    constexpr DateOrder orders[] = {DateOrder::MMDDYY, DateOrder::DDMMYY, DateOrder::YYMMDD};
    const DateOrder order = orders[input.choice(3)];
    const DateConventions conventions{order, MakeDatePicture(order, QStringLiteral("/-.").at(input.choice(3)))};
    const QDate from = QDate(1990, 1, 1).addDays(input.number(2));
    const DateRange range{from, from.addDays(input.choice(256) * 4)};
    input.line();
    Parameters values;
    for (int column = 0; column < 8; ++column)
        values.push_back(stored(input.line()));

    for (RecurrenceRule &rule : readBack(values)) {
        if (rule.StartDate.isValid() && rule.StartDate.daysTo(rule.EndDate) > longestDays)
            rule.EndDate = rule.StartDate.addDays(longestDays);
        checkWalks(rule, range, order);
        checkEditor(rule, conventions);
    }
}
