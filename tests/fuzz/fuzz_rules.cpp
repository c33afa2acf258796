// Any columns of a stored reminder: its rule is read, walked in the three runs, shown in the editor and stored again.
#include <algorithm>

#include "Fuzzing.h"
#include "platform/RuntimeFailure.h"
#include "reminders/Occurrences.h"
#include "reminders/RuleFields.h"
#include "store/Connection.h"
#include "store/Rows.h"
#include "store/schema.h"
#include "text/Dates.h"

namespace {

using Dates = std::vector<QDate>;

constexpr int longestDays = 60 * 366; // of a rule's range, so that an input takes milliseconds

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

/// The row goes through the engine as a keeper's would: its columns decide what becomes of the values.
std::vector<RecurrenceRule> readBack(const std::vector<Value> &values)
{
    static const auto connection = [] {
        auto memory = std::make_shared<Connection>(QStringLiteral(":memory:"));
        for (const schema::Table &table : schema::tables())
            memory->run(table.create, {});
        return memory;
    }();
    connection->run("DELETE FROM MAINTSCHED", {});
    Statement insert(connection,
                     QStringLiteral("INSERT INTO MAINTSCHED (SchedTask, SchedStartDate, SchedEndDate, SchedInterval, "
                                    "SchedRtype, SchedRSubtype, SchedDetailText, SchedEnglishDesc) "
                                    "VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
                     {}, Statement::Use::Again);
    insert.bind(values);
    insert.run();
    Statement query(connection, QStringLiteral("SELECT * FROM maintsched"), {});
    return ReadRules(Rows::read(query));
}

QString inWords(const RecurrenceRule &rule)
{
    return QStringLiteral("%1 to %2, type %3.%4, interval %5, detail \"%6\"")
        .arg(rule.StartDate.toString(Qt::ISODate), rule.EndDate.toString(Qt::ISODate))
        .arg(rule.RecurrenceType)
        .arg(rule.RecurrenceSubtype)
        .arg(rule.RecurrenceInterval)
        .arg(rule.RecurrenceDetail);
}

struct Walked
{
    std::optional<WalkFault> fault;
    Dates dates;
    bool operator==(const Walked &) const = default;
};

Walked walk(const RecurrenceRule &rule, const OccurrenceRun &run, const DateRange &range, const QString &order)
{
    Walked walked;
    walked.fault = Walk(rule, run, range, order, [&walked](const QDate &date) { walked.dates.push_back(date); });
    FUZZ_REQUIRE(!walked.fault || walked.dates.empty(), inWords(rule));
    return walked;
}

/// Those of a weekday of the month are on that day. None before the start; beyond the end one of each weekday, or one
/// later in the year of the end; in order, but for the weekdays of a week.
void checkPreview(const RecurrenceRule &rule, const Dates &dates)
{
    if (rule.is(Pattern::Once)) {
        FUZZ_REQUIRE(dates.size() <= 1, inWords(rule));
        return;
    }
    const bool byWeekday = (rule.is(Pattern::Monthly) || rule.is(Pattern::Yearly)) && rule.RecurrenceSubtype == 1;
    for (const QDate &date : dates)
        FUZZ_REQUIRE(!byWeekday || date.dayOfWeek() % 7 == rule.RecurrenceDetail[1].digitValue(), inWords(rule));
    const auto beyond = std::count_if(dates.begin(), dates.end(), [&](QDate d) { return d > rule.EndDate; });
    const bool ascending = std::adjacent_find(dates.begin(), dates.end(), std::greater_equal<>()) == dates.end();
    FUZZ_REQUIRE(std::all_of(dates.begin(), dates.end(), [&](QDate d) { return d >= rule.StartDate; }), inWords(rule));
    FUZZ_REQUIRE(beyond <= (rule.is(Pattern::Weekly) ? 7 : 1), inWords(rule));
    FUZZ_REQUIRE(ascending || rule.is(Pattern::Weekly), inWords(rule));
}

void checkWalks(const RecurrenceRule &rule, const DateRange &range, const QString &order)
{
    const auto outside = [&range](QDate d) { return d < range.from || d > range.to; };
    Walked preview = walk(rule, previewRun, range, order);
    const Walked schedule = walk(rule, scheduleRun, range, order);
    checkPreview(rule, preview.dates);
    FUZZ_REQUIRE(schedule == walk(rule, upcomingRun, range, order), inWords(rule));
    FUZZ_REQUIRE(std::none_of(schedule.dates.begin(), schedule.dates.end(), outside), inWords(rule));
    std::erase_if(preview.dates, outside);
    FUZZ_REQUIRE(rule.is(Pattern::Yearly) || preview == schedule, inWords(rule));
}

/// What the editor shows of a rule and finds no fault with, it stores as a rule of the same dates, and shows again.
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
    FUZZ_REQUIRE(walk(rule, previewRun, {}, conventions.order) == walk(again, previewRun, {}, conventions.order),
                 inWords(rule) + u" and then " + inWords(again));
    FUZZ_REQUIRE(MakePreview(fields, conventions).dates == walk(again, previewRun, {}, conventions.order).dates,
                 inWords(rule));
    EditorFields shown = fields;
    ShowRecurrence(again, conventions, shown);
    FUZZ_REQUIRE(EnglishSentence(shown) == EnglishSentence(fields), EnglishSentence(shown));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzzDoors();
    Input input(data, size);
    const char *const orders[] = {"MMDDYY", "DDMMYY", "YYMMDD"};
    const QString order = QLatin1String(orders[input.choice(3)]);
    const DateConventions conventions{order, MakeDatePicture(order, QStringLiteral("/-.").at(input.choice(3)))};
    const QDate from = QDate(1990, 1, 1).addDays(input.number(2));
    const DateRange range{from, from.addDays(input.choice(256) * 4)};
    input.line();
    std::vector<Value> values;
    for (int column = 0; column < 8; ++column)
        values.push_back(stored(input.line()));

    for (RecurrenceRule &rule : readBack(values)) {
        if (rule.StartDate.isValid() && rule.StartDate.daysTo(rule.EndDate) > longestDays)
            rule.EndDate = rule.StartDate.addDays(longestDays);
        checkWalks(rule, range, order);
        checkEditor(rule, conventions);
    }
    return 0;
}
