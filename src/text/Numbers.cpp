#include "text/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include <QStringView>

namespace {

constexpr int significantDigits = 15;

constexpr bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

/// The result of scanning a text: the number as plain characters for std::from_chars, and where it ended.
struct Scanned
{
    std::string plain;
    qsizetype end = 0;
    qsizetype leading = 0; ///< power of ten of the first digit that is not 0, without the exponent
    bool found = false;
};

/// Scans the exponent at `at`, if there is a complete one such as "e5" or "E-05".
void scanExponent(QStringView text, qsizetype at, Scanned &number)
{
    if (at >= text.size() || (text[at] != u'e' && text[at] != u'E'))
        return;
    qsizetype i = at + 1;
    const bool negative = i < text.size() && text[i] == u'-';
    if (i < text.size() && (text[i] == u'+' || text[i] == u'-'))
        ++i;
    if (i >= text.size() || !isDigit(text[i]))
        return;
    number.plain += negative ? "e-" : "e";
    for (; i < text.size() && isDigit(text[i]); ++i)
        number.plain += char(text[i].unicode());
    number.end = i;
}

/// Scans the longest number at the start. Commas are accepted only between two digits before the decimal point, and
/// only if `commas` is set.
Scanned scan(QStringView text, bool commas)
{
    Scanned number;
    qsizetype i = 0;
    if (i < text.size() && (text[i] == u'+' || text[i] == u'-')) {
        if (text[i] == u'-')
            number.plain += '-';
        ++i;
    }
    bool point = false;
    qsizetype integers = 0, places = 0, firstNonZero = std::numeric_limits<qsizetype>::min();
    for (; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isDigit(c)) {
            number.found = true;
            if (c != u'0' && firstNonZero == std::numeric_limits<qsizetype>::min())
                firstNonZero = point ? -places - 1 : integers;
            ++(point ? places : integers);
            number.plain += char(c.unicode());
        } else if (c == u'.' && !point) {
            point = true;
            number.plain += '.';
        } else if (!(commas && c == u',' && !point && number.found && isDigit(text[i - 1]) && i + 1 < text.size() &&
                     isDigit(text[i + 1]))) {
            break;
        }
    }
    number.leading = firstNonZero < 0 ? firstNonZero : integers - 1 - firstNonZero;
    number.end = i;
    if (number.found)
        scanExponent(text, i, number);
    return number;
}

/// The value of a scanned number. A number too small for a double is 0; one too large gives nothing.
std::optional<double> valueOf(const Scanned &number)
{
    const char *begin = number.plain.data();
    const char *end = begin + number.plain.size();
    double value = 0;
    if (std::from_chars(begin, end, value).ec != std::errc::result_out_of_range)
        return value;
    const auto e = number.plain.find('e');
    qint64 exponent = 0;
    if (e != std::string::npos) {
        const bool fits = std::from_chars(begin + e + 1, end, exponent).ec == std::errc();
        if (!fits)
            exponent =
                number.plain[e + 1] == '-' ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
    }
    if (exponent < -number.leading)
        return 0.0;
    return std::nullopt;
}

/// A number as its decimal digits: 0.d1d2d3... times ten to the power `point`. Zero has no digits.
struct Decimal
{
    char digits[significantDigits + 1];
    int count = 0;
    int point = 0;
    bool negative = false;

    explicit Decimal(double value)
    {
        char text[40];
        negative = std::signbit(value);
        value = std::abs(value);
        if (value == 0)
            return;
        auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific).ptr;
        const char *e = std::find(text, end, 'e');
        if (e - text > significantDigits + 1) { // one digit more, for the point between them
            end = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, significantDigits - 1)
                      .ptr;
            e = std::find(text, end, 'e');
        }
        for (const char *c = text; c != e; ++c)
            if (*c != '.')
                digits[count++] = *c;
        while (count > 0 && digits[count - 1] == '0')
            --count;
        std::from_chars(e[1] == '+' ? e + 2 : e + 1, static_cast<const char *>(end), point);
        ++point;
    }

    /// Rounds to that many decimal places, halves away from zero.
    void round(int places)
    {
        const int keep = point + places;
        if (keep >= count)
            return;
        if (keep < 0 || (keep == 0 && digits[0] < '5')) {
            count = 0;
            return;
        }
        const bool up = digits[keep] >= '5';
        count = keep;
        if (!up)
            return;
        while (count > 0 && digits[count - 1] == '9')
            --count;
        if (count > 0) {
            ++digits[count - 1];
        } else {
            digits[count++] = '1';
            ++point;
        }
    }

    /// The digit that stands for ten to the power of `power`.
    char at(int power) const
    {
        const int i = point - 1 - power;
        return i >= 0 && i < count ? digits[i] : '0';
    }
    bool isZero() const { return count == 0; }
    int integerDigits() const { return isZero() ? 0 : std::max(point, 0); }
};

/// A picture split into its parts. The text before the first digit and after the last one is copied.
struct Picture
{
    int minIntegers = 0, minPlaces = 0, maxPlaces = 0;
    bool grouped = false, point = false;
    QStringView before, behind;

    explicit Picture(QStringView text)
    {
        const auto isPlace = [](QChar c) { return c == u'0' || c == u'#' || c == u'.' || c == u','; };
        qsizetype begin = 0, end = text.size();
        while (begin < end && !isPlace(text[begin]))
            ++begin;
        while (end > begin && !isPlace(text[end - 1]))
            --end;
        before = text.left(begin);
        behind = text.mid(end);
        for (qsizetype i = begin; i < end; ++i)
            take(text[i]);
    }

private:
    void take(QChar c)
    {
        if (c == u'.') {
            point = true;
        } else if (c == u',') {
            grouped = true;
        } else if (c == u'0' || c == u'#') {
            if (point) {
                ++maxPlaces;
                if (c == u'0')
                    minPlaces = maxPlaces;
            } else if (c == u'0' || minIntegers > 0) {
                ++minIntegers;
            }
        }
    }
};

QString plainOfInfinite(double value)
{
    if (std::isnan(value))
        return QStringLiteral("nan");
    return value < 0 ? QStringLiteral("-inf") : QStringLiteral("inf");
}

} // namespace

bool IsNumeric(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    const Scanned number = scan(trimmed, true);
    return number.found && number.end == trimmed.size();
}

std::optional<double> ReadNumber(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    const Scanned number = scan(trimmed, true);
    if (!number.found || number.end != trimmed.size())
        return std::nullopt;
    return valueOf(number);
}

bool IsStorable(const QString &text) { return ReadNumber(text) || (IsNumeric(text) && Val(text) > 0); }

double Val(const QString &text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    Scanned number = scan(trimmed, true);
    if (number.found && number.end != trimmed.size())
        number = scan(trimmed, false);
    if (!number.found)
        return 0;
    const double largest = std::numeric_limits<double>::max();
    return valueOf(number).value_or(number.plain.front() == '-' ? -largest : largest);
}

QString Format(double value, const QString &picture)
{
    if (!std::isfinite(value))
        return plainOfInfinite(value);
    const Picture p{picture};
    Decimal number{value};
    number.round(p.maxPlaces);
    QString text;
    text.reserve(picture.size() + number.integerDigits() + 8);
    text += p.before;
    if (number.negative && !number.isZero())
        text += u'-';
    for (int power = std::max(number.integerDigits(), p.minIntegers) - 1; power >= 0; --power) {
        text += QLatin1Char(number.at(power));
        if (p.grouped && power > 0 && power % 3 == 0)
            text += u',';
    }
    const int places = std::clamp(number.count - number.point, p.minPlaces, std::max(p.minPlaces, p.maxPlaces));
    if (p.point)
        text += u'.';
    for (int place = 1; place <= places; ++place)
        text += QLatin1Char(number.at(-place));
    text += p.behind;
    return text;
}

QString PlainText(double value)
{
    if (!std::isfinite(value))
        return plainOfInfinite(value);
    const Decimal number{value};
    if (number.isZero())
        return QStringLiteral("0");
    QString text;
    if (number.negative)
        text += u'-';
    const bool scientific = number.point > significantDigits || number.point < -3;
    const int highest = scientific ? number.point - 1 : std::max(number.point - 1, 0);
    const int pointAt = scientific ? highest : 0; // the power that the decimal point follows
    for (int power = highest; power >= std::min(pointAt, number.point - number.count); --power) {
        text += QLatin1Char(number.at(power));
        if (power == pointAt && power > number.point - number.count)
            text += u'.';
    }
    if (scientific) {
        text += highest < 0 ? QLatin1String("E-") : QLatin1String("E+");
        text += QStringLiteral("%1").arg(std::abs(highest), 2, 10, QLatin1Char('0'));
    }
    return text;
}
