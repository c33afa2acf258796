#include "data/ReminderDetail.h"

#include <algorithm>

#include <QStringList>

#include "logic/reminders/RuleFields.h"

namespace {

const QString of = QStringLiteral("of");

enum class Form { AsStored, Days, Day, MonthWeekday, Month, YearWeekday, Date };

Form formOf(const RecurrenceRule &rule)
{
    const bool onWeekday = rule.RecurrenceSubtype == 1;
    if (rule.is(Pattern::Weekly))
        return Form::Days;
    if (rule.is(Pattern::Monthly))
        return onWeekday ? Form::MonthWeekday : Form::Day;
    if (rule.is(Pattern::Yearly))
        return onWeekday ? Form::YearWeekday : Form::Month;
    return rule.is(Pattern::Once) ? Form::Date : Form::AsStored;
}

/// The position of a name in its list, found by the whole name or its first three letters; -1 if it is not there.
int placeOf(const QString &name, const QStringList &names)
{
    for (int i = 0; i < names.size(); ++i)
        if (name.compare(names[i], Qt::CaseInsensitive) == 0 ||
            (name.size() == 3 && names[i].startsWith(name, Qt::CaseInsensitive)))
            return i;
    return -1;
}

int ordinalOf(const QString &name)
{
    // The list has "Forth", but a keeper may write "Fourth".
    return name.compare(u"fourth", Qt::CaseInsensitive) == 0 ? placeOf(QStringLiteral("Forth"), OrdinalNames())
                                                             : placeOf(name, OrdinalNames());
}

QString daysInWords(const QString &detail)
{
    const WeekDays days = ReadWeeklyDetail(detail);
    QStringList names;
    for (std::size_t i = 0; i < days.size(); ++i)
        if (days[i])
            names << WeekdayNames()[int(i)];
    return names.join(u", ");
}

std::optional<QString> daysFromWords(const QString &words)
{
    WeekDays days{};
    for (const QString &word : QString(words).replace(u',', u' ').split(u' ', Qt::SkipEmptyParts)) {
        const int place = placeOf(word, WeekdayNames());
        if (place < 0)
            return std::nullopt;
        days[std::size_t(place)] = true;
    }
    return WeeklyDetail(days);
}

QString monthWeekdayInWords(const QString &detail)
{
    const MonthWeekday place = ReadMonthWeekday(detail);
    if (place.ordinal < 0 || place.weekday < 0)
        return {};
    QString words = OrdinalNames().value(place.ordinal) + u' ' + WeekdayNames().value(place.weekday);
    if (place.month >= 0)
        words += u' ' + of + u' ' + FullMonthNames().value(place.month);
    return words;
}

/// Reads "First Monday" or, with `ofMonth`, "First Monday of March".
std::optional<QString> monthWeekdayFromWords(const QString &words, bool ofMonth)
{
    const QStringList parts = words.split(u' ', Qt::SkipEmptyParts);
    if (parts.size() != (ofMonth ? 4 : 2) || (ofMonth && parts[2].compare(of, Qt::CaseInsensitive) != 0))
        return std::nullopt;
    const int ordinal = ordinalOf(parts[0]), weekday = placeOf(parts[1], WeekdayNames());
    const int month = ofMonth ? placeOf(parts[3], FullMonthNames()) : 0;
    if (ordinal < 0 || weekday < 0 || month < 0)
        return std::nullopt;
    return ofMonth ? YearlyDetail(ordinal, weekday, month) : MonthlyDetail(ordinal, weekday);
}

std::optional<QString> monthFromWords(const QString &words)
{
    const int month = placeOf(words.trimmed(), FullMonthNames());
    return month < 0 ? std::nullopt : std::optional(QString::number(month));
}

/// Whether the text is one or two digits, with or without blanks around them.
bool isDay(const QString &words)
{
    const QString day = words.trimmed();
    return !day.isEmpty() && day.size() <= 2 &&
           std::all_of(day.begin(), day.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QString wordsOf(const RecurrenceRule &rule, DateOrder dateOrder)
{
    const QString &detail = rule.RecurrenceDetail;
    switch (formOf(rule)) {
    case Form::AsStored:
    case Form::Day: break;
    case Form::Days: return daysInWords(detail);
    case Form::MonthWeekday:
    case Form::YearWeekday: return monthWeekdayInWords(detail);
    case Form::Month: return FullMonthNames().value(ReadMonthDetail(detail));
    case Form::Date:
        if (const auto date = ReadOnceDetail(detail, dateOrder))
            return date->toString(Qt::ISODate);
    }
    return detail;
}

struct ColumnOfControl
{
    const char *control;
    const char *column;
};

// The controls of the editor whose values are not in the column "detail".
constexpr ColumnOfControl columnsOfControls[] = {
    {"txt_TaskDescription", "reminder"},     {"txt_StartDate", "start_date"}, {"txt_endDate", "end_date"},
    {"txt_DailyDays", "interval"},           {"txt_WeeklyWeeks", "interval"}, {"txt_MonthlyNumofMonths", "interval"},
    {"txt_MonthlyNumofMonths2", "interval"}, {"txt_YearlyDay", "interval"},
};

const char *columnOf(const QString &control)
{
    for (const ColumnOfControl &row : columnsOfControls)
        if (control == QLatin1String(row.control))
            return row.column;
    return "detail";
}

} // namespace

QString DetailInWords(const RecurrenceRule &rule, DateOrder dateOrder)
{
    const QString words = wordsOf(rule, dateOrder);
    if (formOf(rule) == Form::Date)
        return words;
    const bool readsBack = DetailFromWords(rule, words, {}) == rule.RecurrenceDetail;
    return readsBack ? words : rule.RecurrenceDetail;
}

std::optional<QString> DetailFromWords(const RecurrenceRule &rule, const QString &words,
                                       const std::function<std::optional<QDate>(const QString &)> &readDate)
{
    switch (formOf(rule)) {
    case Form::AsStored: break;
    case Form::Days: return daysFromWords(words);
    case Form::Day: return isDay(words) ? std::optional(words) : std::nullopt;
    case Form::MonthWeekday: return monthWeekdayFromWords(words, false);
    case Form::YearWeekday: return monthWeekdayFromWords(words, true);
    case Form::Month: return monthFromWords(words);
    case Form::Date: {
        const auto date = readDate(words);
        return date ? std::optional(OnceDetail(*date)) : std::nullopt;
    }
    }
    return words;
}

QString ExampleOfDetail(const RecurrenceRule &rule)
{
    switch (formOf(rule)) {
    case Form::AsStored:
    case Form::Day: break;
    case Form::Days: return QStringLiteral("Monday, Thursday");
    case Form::MonthWeekday: return QStringLiteral("First Monday");
    case Form::YearWeekday: return QStringLiteral("Last Friday of November");
    case Form::Month: return QStringLiteral("March");
    case Form::Date: return QStringLiteral("2026-11-24");
    }
    return QStringLiteral("15");
}

std::optional<RuleComplaint> CompleteRule(RecurrenceRule &rule, const DateConventions &dates)
{
    EditorFields fields;
    ShowRecurrence(rule, dates, fields);
    if (const auto complaint = EditFault(fields, dates))
        return RuleComplaint{columnOf(complaint->control), complaint->text};
    const QString given = rule.RecurrenceDetail;
    StoreRecurrence(fields, dates, rule);
    if (rule.RecurrenceDetail == given.trimmed())
        rule.RecurrenceDetail = given; // the day of a month may have been typed with blanks
    return std::nullopt;
}
