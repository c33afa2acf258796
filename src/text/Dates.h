// Dates and times as text: what counts as a date, how a date typed in the user's order becomes month-first text, and
// the pictures that format one. The user sees two-digit years; the store keeps real dates. Only lastTypedYear(), and
// with it the meaning of two-digit years, depends on the clock.
#pragma once

#include <optional>

#include <QDate>
#include <QString>
#include <QTime>

/// In which order the user writes month, day and year.
enum class DateOrder { MMDDYY, DDMMYY, YYMMDD };

/// The order as the settings have it, "MMDDYY" and so on. Reading any other word gives MMDDYY.
QString WordOf(DateOrder dateOrder);
DateOrder ReadDateOrder(const QString &word);

/// How the user writes a date.
struct DateConventions
{
    DateOrder order;
    QString picture; ///< such as "DD.MM.YY"
};

/// The picture that shows a date in the user's order: MMDDYY with "/" gives "MM/DD/YY".
QString MakeDatePicture(DateOrder dateOrder, const QString &delimiter);

/// Converts an eight-character text in the user's order to month-first text "mm/dd/yy". It reads by position
/// (characters 1-2, 4-5, the last two), ignores the delimiters and checks nothing.
QString NormalizeDateText(const QString &text, DateOrder dateOrder);

/// Reads a month-first date: month, day and year, each 1 or 2 digits (year 1 to 4), between "/", "-" or ".". A year of
/// one or two digits falls into the hundred years that end with lastTypedYear(); longer years are taken literally (100
/// to 9999). Returns nothing if the text is not a date, for example because the box is not filled in completely.
std::optional<QDate> ReadDate(const QString &text);
bool IsDate(const QString &text);

/// Reads a date as it was typed: month first or, if that gives no valid date, in the user's order.
std::optional<QDate> ReadTypedDate(const QString &text, DateOrder dateOrder);

/// Reads a date in that order and in no other. Digits, delimiters and years are those of ReadDate.
std::optional<QDate> ReadDateInOrder(const QString &text, DateOrder dateOrder);

/// The last year that two digits can mean: 2029, and from 2028 on two years ahead of the clock, so that a date two
/// years ahead can always be typed.
int lastTypedYear();

/// Reads a time "hh:mm:ss am" of twelve hours (marker in either case), or "hh:mm:ss" of twenty-four. Returns nothing if
/// the text is not a time.
std::optional<QTime> ReadTime(const QString &text);

/// Shows a date with a picture: mm/m month, dd/d day, yy/yyyy year, ddd/dddd weekday, mmm/mmmm month name in English,
/// in either case. All other characters are copied.
QString Format(const QDate &date, const QString &picture);

/// Shows a time with a picture: hh:mm:ss and "am/pm" or "AM/PM" (the case of the marker follows the picture).
QString Format(const QTime &time, const QString &picture);

/// Whether the text is a complete time of a time box, "HH:MM:SS am": hour 1 to 12, minutes and seconds up to 59, marker
/// AM, PM, am or pm.
bool IsBoxTime(const QString &text);
