#include "logic/reminders/RuleFields.h"

#include <algorithm>
#include <iterator>

#include "text/Numbers.h"

namespace {

using Fields = const EditorFields &;
using Dates = const DateConventions &;

bool daily(Fields f) { return f.pattern == Pattern::Daily && !f.opt_DailyEveryWeekday; }
bool weekly(Fields f) { return f.pattern == Pattern::Weekly; }
bool monthlyDay(Fields f) { return f.pattern == Pattern::Monthly && !f.Opt_MonthlyXWeekdayofEveryMonth; }
bool monthlyWeekday(Fields f) { return f.pattern == Pattern::Monthly && f.Opt_MonthlyXWeekdayofEveryMonth; }
bool yearlyDay(Fields f) { return f.pattern == Pattern::Yearly && !f.opt_YearlyThe; }
bool yearlyWeekday(Fields f) { return f.pattern == Pattern::Yearly && f.opt_YearlyThe; }
bool once(Fields f) { return f.pattern == Pattern::Once; }
bool always(Fields) { return true; }

/// Greater than 0 and within the 16 bits in which it is stored.
bool positive(const QString &text) { return ReadShort(text).value_or(0) > 0; }
bool between(const QString &text, int above, int below)
{
    const int number = ReadShort(text).value_or(0);
    return number > above && number < below;
}

struct EditorTest
{
    bool (*applies)(Fields);
    bool (*holds)(Fields, Dates);
    const char *message;
    const char *control;
    std::optional<WalkFault> answers; ///< the preview shows this message for that fault
};

/// For a test that the preview does not need.
constexpr std::optional<WalkFault> unasked;

bool endIsLater(Fields f, Dates d)
{
    return ReadRangeDate(f.txt_StartDate, d)->daysTo(*ReadRangeDate(f.txt_endDate, d)) >= 1;
}

bool anyDayChecked(Fields f, Dates)
{
    return std::any_of(f.chk_WeeklyDay.begin(), f.chk_WeeklyDay.end(), [](bool day) { return day; });
}

/// Checks the day, as typed, in a year that has no February 29.
bool dayIsInMonth(Fields f, Dates)
{
    return IsDate(QString::number(f.cbo_YearlyMonth + 1) + u'/' + f.txt_YearlyDay.trimmed() + u"/1997");
}

constexpr char badMonths[] = "The number of months must be greater than 0.";
constexpr char noFrequency[] = "Choose a frequency from the list.";
constexpr char noWeekday[] = "Choose a weekday from the list.";
constexpr char badYearlyDay[] = "Please enter a valid combination of Month and Day (Sorry No February 29ths here).";

// The tests in their order; the keeper is told the first one that fails. The first and last day are checked for every
// pattern, although a reminder that occurs once does not use them. A yearly date on the 31st is refused in every month.
// A monthly day is at most 28, because every month has that day.
constexpr EditorTest tests[] = {
    {always, [](Fields f, Dates) { return !f.txt_TaskDescription.isEmpty(); },
     "You must enter a description for this reminder.", "txt_TaskDescription", unasked},
    {always, [](Fields f, Dates d) { return ReadRangeDate(f.txt_StartDate, d).has_value(); },
     "Please enter a valid date from which to begin your reminders.", "txt_StartDate", WalkFault::NoStart},
    {always, [](Fields f, Dates d) { return ReadRangeDate(f.txt_endDate, d).has_value(); },
     "Please enter a valid date to end your recurring reminders.", "txt_endDate", WalkFault::NoEnd},
    {always, endIsLater, "Your End Date must be greater than your Start date for recurring reminders.", "txt_endDate",
     unasked},
    {daily, [](Fields f, Dates) { return positive(f.txt_DailyDays); },
     "Enter the number of days apart you wish to schedule this reminder.", "txt_DailyDays", WalkFault::NoStep},
    {weekly, [](Fields f, Dates) { return positive(f.txt_WeeklyWeeks); }, "The number of weeks must be greater than 0.",
     "txt_WeeklyWeeks", WalkFault::NoStep},
    {weekly, anyDayChecked, "Check the days of the week on which you wish to schedule this reminder.",
     "chk_WeeklyDay_0", unasked},
    {monthlyDay, [](Fields f, Dates) { return between(f.txt_MonthlyDay, 0, 29); },
     "When choosing the same day of the every month, the day must be between 1 and 28.", "txt_MonthlyDay",
     WalkFault::NoDay},
    {monthlyDay, [](Fields f, Dates) { return positive(f.txt_MonthlyNumofMonths); }, badMonths,
     "txt_MonthlyNumofMonths", WalkFault::NoStep},
    {monthlyWeekday, [](Fields f, Dates) { return f.cbo_MonthlyXth >= 0; }, noFrequency, "cbo_MonthlyXth",
     WalkFault::NoOrdinal},
    {monthlyWeekday, [](Fields f, Dates) { return f.cbo_MonthlyWeekday >= 0; }, noWeekday, "cbo_MonthlyWeekday",
     WalkFault::NoWeekday},
    {monthlyWeekday, [](Fields f, Dates) { return positive(f.txt_MonthlyNumofMonths2); }, badMonths,
     "txt_MonthlyNumofMonths2", WalkFault::NoStep},
    {yearlyDay, [](Fields f, Dates) { return f.cbo_YearlyMonth >= 0; }, "Choose a month.", "cbo_YearlyMonth",
     WalkFault::NoMonth},
    {yearlyDay, [](Fields f, Dates) { return between(f.txt_YearlyDay, 0, 31); }, badYearlyDay, "txt_YearlyDay",
     WalkFault::NoDay},
    {yearlyDay, dayIsInMonth, badYearlyDay, "txt_YearlyDay", unasked},
    {yearlyWeekday, [](Fields f, Dates) { return f.cbo_YearlyXth >= 0; }, noFrequency, "cbo_YearlyXth",
     WalkFault::NoOrdinal},
    {yearlyWeekday, [](Fields f, Dates) { return f.cbo_YearlyWeekday >= 0; }, noWeekday, "cbo_YearlyWeekday",
     WalkFault::NoWeekday},
    {yearlyWeekday, [](Fields f, Dates) { return f.cbo_YearlyMonth2 >= 0; }, "Choose a Month from the list.",
     "cbo_YearlyMonth2", WalkFault::NoMonth},
    {once, [](Fields f, Dates d) { return ReadOnceDate(f.txt_OnceDate, d).has_value(); },
     "Please enter a valid date, or choose one with the calendar.", "txt_OnceDate", unasked},
};

template <class Fails> std::optional<EditorComplaint> firstOf(Fields fields, Fails fails)
{
    const auto *test = std::find_if(std::begin(tests), std::end(tests),
                                    [&](const EditorTest &t) { return t.applies(fields) && fails(t); });
    if (test == std::end(tests))
        return std::nullopt;
    return EditorComplaint{QLatin1String(test->message), QStringLiteral("Oops"), QLatin1String(test->control)};
}

/// The stored date of a reminder that occurs once: the text as typed, if it gives the date when read month first.
QString onceDetail(const DateBox &box, Dates dates)
{
    const QDate date = ReadOnceDate(box, dates).value_or(QDate());
    return ReadDate(box.text) == date ? box.text : OnceDetail(date);
}

/// The position, or -1 if the list has no such position.
int inList(int position, const QStringList &list) { return position < list.size() ? position : -1; }

void showMonthly(const RecurrenceRule &rule, EditorFields &fields)
{
    fields.txt_MonthlyNumofMonths = fields.txt_MonthlyNumofMonths2 = QString::number(rule.RecurrenceInterval);
    if (rule.RecurrenceSubtype == 0) {
        fields.Opt_MonthlyXWeekdayofEveryMonth = false;
        fields.txt_MonthlyDay = rule.RecurrenceDetail.trimmed();
    } else if (rule.RecurrenceSubtype == 1) {
        const MonthWeekday place = ReadMonthWeekday(rule.RecurrenceDetail);
        fields.Opt_MonthlyXWeekdayofEveryMonth = true;
        fields.cbo_MonthlyXth = std::min(place.ordinal, lastOrdinal);
        fields.cbo_MonthlyWeekday = place.weekday;
    }
}

void showYearly(const RecurrenceRule &rule, EditorFields &fields)
{
    if (rule.RecurrenceSubtype == 0) {
        fields.txt_YearlyDay = QString::number(rule.RecurrenceInterval);
        fields.opt_YearlyThe = false;
        fields.cbo_YearlyMonth = inList(ReadMonthDetail(rule.RecurrenceDetail), FullMonthNames());
    } else if (rule.RecurrenceSubtype == 1) {
        const MonthWeekday place = ReadMonthWeekday(rule.RecurrenceDetail);
        fields.opt_YearlyThe = true;
        fields.cbo_YearlyXth = std::min(place.ordinal, lastOrdinal);
        fields.cbo_YearlyWeekday = place.weekday;
        fields.cbo_YearlyMonth2 = inList(place.month, FullMonthNames());
    }
}

void showPattern(const RecurrenceRule &rule, Dates dates, EditorFields &fields)
{
    switch (fields.pattern) {
    case Pattern::Daily:
        fields.txt_DailyDays = QString::number(rule.RecurrenceInterval);
        if (rule.RecurrenceSubtype == 0 || rule.RecurrenceSubtype == 1)
            fields.opt_DailyEveryWeekday = rule.RecurrenceSubtype == 1;
        break;
    case Pattern::Weekly:
        fields.txt_WeeklyWeeks = QString::number(rule.RecurrenceInterval);
        fields.chk_WeeklyDay = ReadWeeklyDetail(rule.RecurrenceDetail);
        break;
    case Pattern::Monthly: showMonthly(rule, fields); break;
    case Pattern::Yearly: showYearly(rule, fields); break;
    case Pattern::Once:
        const auto date = ReadOnceDetail(rule.RecurrenceDetail, dates.order);
        fields.txt_OnceDate = date ? PutDate(*date, dates) : DateBox{rule.RecurrenceDetail, {}};
        break;
    }
}

QString weekSentence(Fields f)
{
    QStringList checked;
    for (qsizetype i = 0; i < WeekdayNames().size(); ++i)
        if (f.chk_WeeklyDay[std::size_t(i)])
            checked << WeekdayNames()[i].left(3);
    return u"Every " + f.txt_WeeklyWeeks + u" week(s) on " + checked.join(QStringLiteral(", ")) + u'.';
}

/// "First Sunday"
QString placeName(int ordinal, int weekday)
{
    return OrdinalNames().value(ordinal) + u' ' + WeekdayNames().value(weekday);
}

} // namespace

DateBox PutDate(const QDate &date, const DateConventions &dates) { return {Format(date, dates.picture), date}; }

std::optional<QDate> ReadRangeDate(const DateBox &box, const DateConventions &dates)
{
    if (box.put.isValid() && box.text == Format(box.put, dates.picture))
        return box.put;
    return ReadDate(NormalizeDateText(box.text, dates.order));
}

std::optional<QDate> ReadOnceDate(const DateBox &box, const DateConventions &dates)
{
    if (box.put.isValid() && box.text == Format(box.put, dates.picture))
        return box.put;
    return ReadTypedDate(box.text, dates.order);
}

QString EnglishSentence(const EditorFields &f)
{
    switch (f.pattern) {
    case Pattern::Daily:
        return f.opt_DailyEveryWeekday ? QStringLiteral("Every Weekday (Mon, Tue, Wed, Thu, Fri).")
                                       : u"Every " + f.txt_DailyDays + u" days.";
    case Pattern::Weekly: return weekSentence(f);
    case Pattern::Monthly: // the two sentences write the plural differently, and stored sentences already contain both
        if (f.Opt_MonthlyXWeekdayofEveryMonth)
            return u"The " + placeName(f.cbo_MonthlyXth, f.cbo_MonthlyWeekday) + u" of every " +
                   f.txt_MonthlyNumofMonths2 + u" month(s).";
        return u"Day " + f.txt_MonthlyDay + u" of every " + f.txt_MonthlyNumofMonths + u" months.";
    case Pattern::Yearly:
        if (f.opt_YearlyThe)
            return u"The " + placeName(f.cbo_YearlyXth, f.cbo_YearlyWeekday) + u" of every " +
                   FullMonthNames().value(f.cbo_YearlyMonth2) + u'.';
        return u"Every year on " + FullMonthNames().value(f.cbo_YearlyMonth) + u' ' + f.txt_YearlyDay + u'.';
    case Pattern::Once: return u"Only once on " + f.txt_OnceDate.text + u'.';
    }
    return {};
}

void StoreRecurrence(const EditorFields &f, const DateConventions &dates, RecurrenceRule &rule)
{
    const auto setInterval = [&rule](const QString &text) { rule.RecurrenceInterval = ReadShort(text).value_or(0); };
    rule.StartDate = ReadRangeDate(f.txt_StartDate, dates).value_or(QDate());
    rule.EndDate = ReadRangeDate(f.txt_endDate, dates).value_or(QDate());
    rule.TaskDescription = f.txt_TaskDescription;
    rule.RecurrenceType = qint16(f.pattern);
    rule.EnglishDescription = f.txt_EnglishDesc;
    switch (f.pattern) {
    case Pattern::Daily:
        setInterval(f.txt_DailyDays);
        rule.RecurrenceSubtype = f.opt_DailyEveryWeekday;
        break;
    case Pattern::Weekly:
        setInterval(f.txt_WeeklyWeeks);
        rule.RecurrenceDetail = WeeklyDetail(f.chk_WeeklyDay);
        break;
    case Pattern::Monthly: {
        const bool weekday = f.Opt_MonthlyXWeekdayofEveryMonth;
        rule.RecurrenceSubtype = weekday;
        setInterval(weekday ? f.txt_MonthlyNumofMonths2 : f.txt_MonthlyNumofMonths);
        rule.RecurrenceDetail = weekday ? MonthlyDetail(f.cbo_MonthlyXth, f.cbo_MonthlyWeekday) : f.txt_MonthlyDay;
        break;
    }
    case Pattern::Yearly:
        rule.RecurrenceSubtype = f.opt_YearlyThe;
        if (f.opt_YearlyThe) {
            rule.RecurrenceDetail = YearlyDetail(f.cbo_YearlyXth, f.cbo_YearlyWeekday, f.cbo_YearlyMonth2);
        } else {
            setInterval(f.txt_YearlyDay);
            rule.RecurrenceDetail = QString::number(f.cbo_YearlyMonth);
        }
        break;
    case Pattern::Once: rule.RecurrenceDetail = onceDetail(f.txt_OnceDate, dates); break;
    }
}

void ShowRecurrence(const RecurrenceRule &rule, const DateConventions &dates, EditorFields &fields)
{
    fields.txt_StartDate = PutDate(rule.StartDate, dates);
    fields.txt_endDate = PutDate(rule.EndDate, dates);
    fields.txt_TaskDescription = rule.TaskDescription;
    if (rule.RecurrenceType >= 0 && rule.RecurrenceType <= qint16(Pattern::Once)) {
        fields.pattern = Pattern(rule.RecurrenceType);
        showPattern(rule, dates, fields);
    }
    // The sentence comes last, because a new one is made from the other fields.
    fields.txt_EnglishDesc = rule.EnglishDescription.isEmpty() ? EnglishSentence(fields) : rule.EnglishDescription;
}

std::optional<EditorComplaint> EditFault(const EditorFields &fields, const DateConventions &dates)
{
    return firstOf(fields, [&](const EditorTest &test) { return !test.holds(fields, dates); });
}

RulePreview MakePreview(const EditorFields &fields, const DateConventions &dates)
{
    RulePreview preview;
    if (once(fields) && !ReadOnceDate(fields.txt_OnceDate, dates)) {
        preview.complaint = EditorComplaint{QStringLiteral("Enter a valid date to schedule your reminder"),
                                            QStringLiteral("Ooops!"), QStringLiteral("txt_OnceDate")};
        return preview;
    }
    RecurrenceRule rule;
    StoreRecurrence(fields, dates, rule);
    const auto fault =
        Walk(rule, previewRun, {}, dates.order, [&preview](const QDate &date) { preview.dates.push_back(date); });
    if (fault)
        preview.complaint = firstOf(fields, [&](const EditorTest &test) { return test.answers == fault; });
    return preview;
}
