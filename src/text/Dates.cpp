#include "text/Dates.h"

#include <algorithm>
#include <array>

#include <QStringView>

#include "platform/core/Doors.h"

namespace {

/// Where month, day and year are among the three numbers of a date; in the order of DateOrder.
struct Order
{
    const char *word;
    std::size_t month, day, year;
};
constexpr Order orders[] = {{"MMDDYY", 0, 1, 2}, {"DDMMYY", 1, 0, 2}, {"YYMMDD", 1, 2, 0}};

const Order &orderOf(DateOrder dateOrder) { return orders[std::size_t(dateOrder)]; }

constexpr const char *monthNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                      "July",    "August",   "September", "October", "November", "December"};
constexpr const char *weekdayNames[] = {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};

constexpr QChar lower(QChar c) { return c >= u'A' && c <= u'Z' ? QChar(char16_t(c.unicode() + 32)) : c; }

/// A run of digits in a typed text.
struct NumberField
{
    int value = 0;
    int digits = 0;
};

using Fields = std::array<NumberField, 3>;

/// Removes up to `most` digits from the front of the text. Returns false if it does not start with a digit.
bool takeNumber(QStringView &text, int most, NumberField &field)
{
    field = {};
    while (field.digits < most && !text.isEmpty() && text[0] >= u'0' && text[0] <= u'9') {
        field.value = field.value * 10 + (text[0].unicode() - u'0');
        ++field.digits;
        text = text.mid(1);
    }
    return field.digits > 0;
}

/// Reads three numbers of up to four digits, separated by one of the delimiters. The text must contain nothing else.
std::optional<Fields> threeNumbers(QStringView text, QStringView delimiters)
{
    Fields fields;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (i > 0) {
            if (text.isEmpty() || !delimiters.contains(text[0]))
                return std::nullopt;
            text = text.mid(1);
        }
        if (!takeNumber(text, 4, fields[i]))
            return std::nullopt;
    }
    if (!text.isEmpty())
        return std::nullopt;
    return fields;
}

std::optional<QDate> dateOf(const NumberField &month, const NumberField &day, const NumberField &year)
{
    if (month.digits > 2 || day.digits > 2)
        return std::nullopt;
    int y = year.value;
    if (year.digits <= 2) {
        const int last = lastTypedYear();
        y = last - (last - y) % 100;
    } else if (y < 100) {
        return std::nullopt;
    }
    const QDate date(y, month.value, day.value);
    if (!date.isValid())
        return std::nullopt;
    return date;
}

constexpr QStringView dateDelimiters = u"/-.";

/// Splits a picture into runs of one letter, at most four long. `show(text, letter, length)` gets the letter in lower
/// case, appends what the run stands for and returns true; if it returns false, the run itself is appended.
template <class Show> QString showPicture(QStringView picture, Show show)
{
    QString text;
    text.reserve(picture.size() + 16);
    for (qsizetype i = 0; i < picture.size();) {
        qsizetype end = i + 1;
        while (end < picture.size() && end - i < 4 && lower(picture[end]) == lower(picture[i]))
            ++end;
        if (!show(text, lower(picture[i]), end - i))
            text += picture.mid(i, end - i);
        i = end;
    }
    return text;
}

void appendNumber(QString &text, int number, int digits)
{
    char16_t buffer[12];
    char16_t *c = std::end(buffer);
    for (; number > 0 || digits > 0; number /= 10, --digits)
        *--c = char16_t(u'0' + number % 10);
    text += QStringView(c, std::end(buffer));
}

/// Appends a name in full, or its first three letters.
void appendName(QString &text, const char *name, bool shortened)
{
    const QLatin1String whole(name);
    text += shortened ? whole.left(3) : whole;
}

bool showDateRun(QString &text, const QDate &date, QChar letter, qsizetype length)
{
    switch (letter.unicode()) {
    case u'd':
        if (length <= 2)
            appendNumber(text, date.day(), int(length));
        else
            appendName(text, weekdayNames[date.dayOfWeek() - 1], length == 3);
        return true;
    case u'm':
        if (length <= 2)
            appendNumber(text, date.month(), int(length));
        else
            appendName(text, monthNames[date.month() - 1], length == 3);
        return true;
    case u'y':
        if (length == 2)
            appendNumber(text, date.year() % 100, 2);
        else if (length == 4)
            appendNumber(text, date.year(), 4);
        return length == 2 || length == 4;
    default: return false;
    }
}

bool isMarker(QStringView marker) { return marker == u"AM" || marker == u"PM" || marker == u"am" || marker == u"pm"; }

} // namespace

QString WordOf(DateOrder dateOrder) { return QLatin1String(orderOf(dateOrder).word); }

DateOrder ReadDateOrder(const QString &word)
{
    const auto *found =
        std::ranges::find_if(orders, [&word](const Order &order) { return word == QLatin1String(order.word); });
    return found == std::end(orders) ? DateOrder::MMDDYY : DateOrder(found - orders);
}

QString MakeDatePicture(DateOrder dateOrder, const QString &delimiter)
{
    const QString word = WordOf(dateOrder);
    return word.left(2) + delimiter + word.mid(2, 2) + delimiter + word.right(2);
}

QString NormalizeDateText(const QString &text, DateOrder dateOrder)
{
    const QString fields[] = {text.left(2), text.mid(3, 2), text.right(2)};
    const Order &order = orderOf(dateOrder);
    return fields[order.month] + u'/' + fields[order.day] + u'/' + fields[order.year];
}

std::optional<QDate> ReadDate(const QString &text)
{
    const auto fields = threeNumbers(text, dateDelimiters);
    return fields ? dateOf((*fields)[0], (*fields)[1], (*fields)[2]) : std::nullopt;
}

bool IsDate(const QString &text) { return ReadDate(text).has_value(); }

std::optional<QDate> ReadTypedDate(const QString &text, DateOrder dateOrder)
{
    const auto date = ReadDate(text);
    return date ? date : ReadDateInOrder(text, dateOrder);
}

std::optional<QDate> ReadDateInOrder(const QString &text, DateOrder dateOrder)
{
    const auto fields = threeNumbers(text, dateDelimiters);
    const Order &order = orderOf(dateOrder);
    return fields ? dateOf((*fields)[order.month], (*fields)[order.day], (*fields)[order.year]) : std::nullopt;
}

int lastTypedYear() { return std::max(2029, Now().date().year() + 2); }

std::optional<QTime> ReadTime(const QString &text)
{
    QStringView rest = QStringView(text).trimmed();
    const QStringView marker = rest.right(2);
    const bool afternoon = marker.compare(u"pm", Qt::CaseInsensitive) == 0;
    const bool twelve = afternoon || marker.compare(u"am", Qt::CaseInsensitive) == 0;
    if (twelve)
        rest.chop(2);
    const auto fields = threeNumbers(rest.trimmed(), u":");
    if (!fields || std::any_of(fields->begin(), fields->end(), [](const NumberField &f) { return f.digits > 2; }))
        return std::nullopt;
    int hour = (*fields)[0].value;
    if (twelve) {
        if (hour < 1 || hour > 12)
            return std::nullopt;
        hour = hour % 12 + (afternoon ? 12 : 0);
    }
    const QTime time(hour, (*fields)[1].value, (*fields)[2].value);
    if (!time.isValid())
        return std::nullopt;
    return time;
}

QString Format(const QDate &date, const QString &picture)
{
    if (!date.isValid())
        return {};
    return showPicture(picture, [&](QString &text, QChar letter, qsizetype length) {
        return showDateRun(text, date, letter, length);
    });
}

QString Format(const QTime &time, const QString &picture)
{
    if (!time.isValid())
        return {};
    const qsizetype marker = picture.indexOf(u"am/pm", 0, Qt::CaseInsensitive);
    const int hour = marker < 0 ? time.hour() : (time.hour() + 11) % 12 + 1;
    QString text = showPicture(QStringView(picture).left(marker), [&](QString &out, QChar letter, qsizetype length) {
        const bool known = length <= 2 && (letter == u'h' || letter == u'm' || letter == u's');
        if (known)
            appendNumber(out, letter == u'h' ? hour : letter == u'm' ? time.minute() : time.second(), int(length));
        return known;
    });
    if (marker < 0)
        return text;
    const bool upper = picture[marker] == u'A';
    text += time.hour() < 12 ? (upper ? u"AM" : u"am") : (upper ? u"PM" : u"pm");
    text += QStringView(picture).mid(marker + 5);
    return text;
}

bool IsBoxTime(const QString &text)
{
    const QStringView marker = QStringView(text).mid(9);
    return text.size() == 11 && text[8] == u' ' && isMarker(marker) && ReadTime(text).has_value();
}
