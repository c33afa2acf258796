#include "store/Iso.h"

namespace {

/// The number formed by the digits [at, at + length), or -1.
int digitsAt(std::string_view text, std::size_t at, std::size_t length)
{
    int number = 0;
    for (std::size_t i = at; i < at + length; ++i) {
        if (text[i] < '0' || text[i] > '9')
            return -1;
        number = number * 10 + (text[i] - '0');
    }
    return number;
}

void putDigits(char *end, int number, int length)
{
    for (; length > 0; --length, number /= 10)
        *--end = char('0' + number % 10);
}

} // namespace

std::optional<QDate> readIsoDate(std::string_view text)
{
    if (text.size() != 10 || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    const int year = digitsAt(text, 0, 4), month = digitsAt(text, 5, 2), day = digitsAt(text, 8, 2);
    if (year < 1 || !QDate::isValid(year, month, day))
        return std::nullopt;
    return QDate(year, month, day);
}

std::optional<QTime> readIsoTime(std::string_view text)
{
    if (text.size() != 8 || text[2] != ':' || text[5] != ':')
        return std::nullopt;
    const int hour = digitsAt(text, 0, 2), minute = digitsAt(text, 3, 2), second = digitsAt(text, 6, 2);
    if (!QTime::isValid(hour, minute, second))
        return std::nullopt;
    return QTime(hour, minute, second);
}

QByteArray isoText(const QDate &date)
{
    if (!date.isValid() || date.year() < 1 || date.year() > 9999)
        return {};
    char text[] = "YYYY-MM-DD";
    putDigits(text + 4, date.year(), 4);
    putDigits(text + 7, date.month(), 2);
    putDigits(text + 10, date.day(), 2);
    return QByteArray(text, 10);
}

QByteArray isoText(const QTime &time)
{
    if (!time.isValid())
        return {};
    char text[] = "HH:MM:SS";
    putDigits(text + 2, time.hour(), 2);
    putDigits(text + 5, time.minute(), 2);
    putDigits(text + 8, time.second(), 2);
    return QByteArray(text, 8);
}
