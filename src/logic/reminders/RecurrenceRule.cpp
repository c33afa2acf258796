#include "logic/reminders/RecurrenceRule.h"

#include <cmath>
#include <limits>

#include "platform/core/RuntimeFailure.h"
#include "store/Database.h"
#include "text/Dates.h"
#include "text/Numbers.h"

namespace {

enum Column { Task, Start, End, Interval, Type, Subtype, Detail, Sentence, ColumnCount };

constexpr const char *columnNames[ColumnCount] = {
    "SchedTask",  "SchedStartDate", "SchedEndDate",    "SchedInterval",
    "SchedRtype", "SchedRSubtype",  "SchedDetailText", "SchedEnglishDesc",
};

const QString onceRules = QStringLiteral("WHERE SchedRtype = ?");

QDate dateOr(const Value &value)
{
    const auto *date = std::get_if<QDate>(&value.variant());
    return date ? *date : QDate();
}

/// 0 if the value is not a whole number of 16 bits.
qint16 shortOr(const Value &value)
{
    const auto *number = std::get_if<qint64>(&value.variant());
    return number && *number == qint16(*number) ? qint16(*number) : qint16(0);
}

/// `cell(column)` returns the Value of a column.
template <class Cell> RecurrenceRule ruleOf(Cell cell)
{
    return {cell(Task).text(),   dateOr(cell(Start)),    dateOr(cell(End)),   shortOr(cell(Interval)),
            shortOr(cell(Type)), shortOr(cell(Subtype)), cell(Detail).text(), cell(Sentence).text()};
}

/// The names of `count` successive days or months, made with a picture.
template <class Next> QStringList names(QDate day, int count, Next next, const char *picture)
{
    QStringList list;
    for (; list.size() < count; day = next(day))
        list << Format(day, QLatin1String(picture));
    return list;
}

int digitAt(const QString &text, qsizetype at)
{
    const QChar c = at < text.size() ? text[at] : QChar();
    return c >= u'0' && c <= u'9' ? c.unicode() - u'0' : -1;
}

/// A number of one or two digits; -1 if the text is anything else.
int position(QStringView text)
{
    text = text.trimmed();
    if (text.isEmpty() || text.size() > 2)
        return -1;
    int number = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            return -1;
        number = number * 10 + (c.unicode() - u'0');
    }
    return number;
}

} // namespace

RecurrenceRule NewRule(const QDate &today)
{
    RecurrenceRule rule;
    rule.StartDate = today;
    rule.EndDate = today.addYears(2);
    return rule;
}

std::vector<RecurrenceRule> ReadRules(const Rows &rows)
{
    std::array<int, ColumnCount> columns;
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i] = rows.column(QLatin1String(columnNames[i])); columns[i] < 0)
            throw RuntimeFailure(Failure::NoSuchColumn, QLatin1String(columnNames[i]));
    std::vector<RecurrenceRule> rules;
    rules.reserve(std::size_t(rows.count()));
    for (qsizetype row = 0; row < rows.count(); ++row)
        rules.push_back(ruleOf([&](Column c) { return rows.value(row, columns[std::size_t(c)]); }));
    return rules;
}

RecurrenceRule ReadRule(Recordset &row)
{
    return ruleOf([&row](Column c) { return row[QLatin1String(columnNames[c])].value(); });
}

void WriteRule(Recordset &row, const RecurrenceRule &rule)
{
    const Value values[ColumnCount] = {
        rule.TaskDescription,         rule.StartDate,           rule.EndDate,
        int(rule.RecurrenceInterval), int(rule.RecurrenceType), int(rule.RecurrenceSubtype),
        rule.RecurrenceDetail,        rule.EnglishDescription,
    };
    for (int i = 0; i < ColumnCount; ++i)
        row[QLatin1String(columnNames[i])].setValue(values[i]);
}

const QStringList &OrdinalNames()
{
    // "Forth" is the spelling that keepers know, and stored sentences contain it.
    static const QStringList list{QStringLiteral("First"), QStringLiteral("Second"), QStringLiteral("Third"),
                                  QStringLiteral("Forth"), QStringLiteral("Last")};
    return list;
}

const QStringList &WeekdayNames()
{
    static const QStringList list = names(
        QDate(1997, 11, 2), 7, [](QDate d) { return d.addDays(1); }, "dddd"); // a Sunday
    return list;
}

const QStringList &FullMonthNames()
{
    static const QStringList list = names(
        QDate(1997, 1, 1), 12, [](QDate d) { return d.addMonths(1); }, "mmmm");
    return list;
}

QString WeeklyDetail(const WeekDays &days)
{
    QString detail;
    for (const bool day : days)
        detail += day ? u'1' : u'0';
    return detail;
}

WeekDays ReadWeeklyDetail(const QString &detail)
{
    WeekDays days;
    for (std::size_t i = 0; i < days.size(); ++i)
        days[i] = digitAt(detail, qsizetype(i)) == 1;
    return days;
}

QString MonthlyDetail(int ordinal, int weekday) { return QString::number(ordinal) + QString::number(weekday); }

QString YearlyDetail(int ordinal, int weekday, int month)
{
    return MonthlyDetail(ordinal, weekday) + Format(month, QStringLiteral("00"));
}

MonthWeekday ReadMonthWeekday(const QString &detail)
{
    const int weekday = digitAt(detail, 1);
    return {digitAt(detail, 0), weekday < 7 ? weekday : -1, position(QStringView(detail).mid(2))};
}

int ReadMonthDetail(const QString &detail) { return position(detail); }

std::optional<qint16> ReadShort(const QString &text)
{
    const double number = std::round(Val(text));
    if (number < std::numeric_limits<qint16>::min() || number > std::numeric_limits<qint16>::max())
        return std::nullopt;
    return qint16(number);
}

QString OnceDetail(const QDate &date) { return Format(date, QStringLiteral("mm/dd/yyyy")); }

std::optional<QDate> ReadOnceDetail(const QString &detail, DateOrder dateOrder)
{
    for (const DateOrder order : {dateOrder, DateOrder::DDMMYY, DateOrder::YYMMDD})
        if (const auto date = ReadTypedDate(detail, order))
            return date;
    return std::nullopt;
}

void KeepOnceDates(Database &database, DateOrder dateOrder)
{
    const QString detailColumn = QLatin1String(columnNames[Detail]);
    Recordset rows = database.OpenForUpdate(QStringLiteral("maintsched"), onceRules, {int(Pattern::Once)});
    for (; !rows.EOF_(); rows.MoveNext()) {
        const QString detail = rows[detailColumn].text();
        const auto date = ReadOnceDetail(detail, dateOrder);
        if (!date || IsDate(detail))
            continue;
        rows.Edit();
        rows[detailColumn].setValue(OnceDetail(*date));
        rows.Update();
    }
}
