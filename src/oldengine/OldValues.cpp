#include "oldengine/OldValues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iconv.h>

#include <QtEndian>

namespace {

/// Reads a little-endian number from the bytes of a cell. Returns nothing if there are too few bytes.
template <class Number> std::optional<Number> numberIn(QByteArrayView bytes, qsizetype at = 0)
{
    if (bytes.size() < at + qsizetype(sizeof(Number)))
        return std::nullopt;
    return qFromLittleEndian<Number>(bytes.data() + at);
}

template <class Number> std::optional<Value> wholeIn(QByteArrayView bytes)
{
    const auto number = numberIn<Number>(bytes);
    return number ? std::optional<Value>(qint64(*number)) : std::nullopt;
}

/// Infinity and NaN are not values that we store.
std::optional<Value> finite(std::optional<double> number)
{
    return number && std::isfinite(*number) ? std::optional<Value>(*number) : std::nullopt;
}

std::optional<double> shortestDecimal(std::optional<float> single)
{
    if (!single || !std::isfinite(*single))
        return std::nullopt;
    std::array<char, 64> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), *single);
    double number = 0;
    std::from_chars(text.data(), written.ptr, number);
    return number;
}

/// A sign, and then a number of four words, the most significant first.
std::optional<double> decimalIn(QByteArrayView bytes, int scale)
{
    long double number = 0;
    for (int word = 0; word < 4; ++word) {
        const auto part = numberIn<quint32>(bytes, 1 + 4 * word);
        if (!part)
            return std::nullopt;
        number = number * 4294967296.0L + *part;
    }
    const bool isNegative = (bytes[0] & 0x80) != 0;
    return double((isNegative ? -number : number) / std::pow(10.0L, (long double)(scale)));
}

constexpr int secondsOfADay = 24 * 60 * 60;

/// Days since 1899-12-30, from the year 100 to 9999. The fraction is always the time of day: -1.25 is 6:00 on
/// 1899-12-29.
std::optional<double> momentIn(QByteArrayView bytes)
{
    const auto moment = numberIn<double>(bytes);
    return moment && *moment > -657435 && *moment < 2958466 ? moment : std::nullopt;
}

std::optional<Value> dayOf(std::optional<double> moment)
{
    return moment ? std::optional<Value>(QDate(1899, 12, 30).addDays(qint64(std::trunc(*moment)))) : std::nullopt;
}

std::optional<Value> timeOf(std::optional<double> moment)
{
    if (!moment)
        return std::nullopt;
    const double fraction = std::fabs(*moment - std::trunc(*moment));
    const int second = std::min(int(std::lround(fraction * secondsOfADay)), secondsOfADay - 1);
    return QTime(0, 0).addSecs(second);
}

std::optional<Value> numberOf(QByteArrayView bytes, OldType type, int scale)
{
    switch (type) {
    case OldType::Boolean: return Value(!bytes.empty() && bytes[0] != 0);
    case OldType::Byte: return wholeIn<quint8>(bytes);
    case OldType::Integer: return wholeIn<qint16>(bytes);
    case OldType::Long: return wholeIn<qint32>(bytes);
    case OldType::Currency:
        if (const auto tenThousandths = numberIn<qint64>(bytes))
            return Value(double(*tenThousandths) / 10000);
        return std::nullopt;
    case OldType::Single: return finite(shortestDecimal(numberIn<float>(bytes)));
    case OldType::Double: return finite(numberIn<double>(bytes));
    case OldType::Decimal: return finite(decimalIn(bytes, scale));
    default: return std::nullopt;
    }
}

/// A compressed text begins with two bytes as a mark. Then each character takes one byte until a 0, after that two
/// bytes until the next 0, and so on.
QByteArray uncompressed(QByteArrayView bytes)
{
    QByteArray utf16;
    bool isCompressed = true;
    for (qsizetype at = 2; at < bytes.size();) {
        if (bytes[at] == 0) {
            isCompressed = !isCompressed;
            ++at;
        } else if (isCompressed) {
            utf16.append(bytes[at++]).append('\0');
        } else {
            utf16.append(bytes.sliced(at, std::min<qsizetype>(2, bytes.size() - at)));
            at += 2;
        }
    }
    return utf16;
}

std::optional<QString> fromUtf16(QByteArrayView bytes)
{
    if (bytes.size() % 2 != 0)
        return std::nullopt;
    QString text(bytes.size() / 2, Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i)
        text[i] = QChar(qFromLittleEndian<char16_t>(bytes.data() + 2 * i));
    return text;
}

bool isNumber(OldType type)
{
    return (type >= OldType::Boolean && type <= OldType::Double) || type == OldType::Decimal;
}

} // namespace

bool CanBeRead(OldType type, ColumnKind as)
{
    const bool isText = type == OldType::Text || type == OldType::Memo;
    switch (as) {
    case ColumnKind::Date:
    case ColumnKind::Time: return type == OldType::Date;
    case ColumnKind::Text: return isText || isNumber(type);
    default: return isNumber(type);
    }
}

OldTextReader::OldTextReader(int codePage)
{
    if (codePage == 0)
        return;
    const QByteArray name = "CP" + QByteArray::number(codePage);
    m_converter = iconv_open("UTF-16LE", name.constData());
    if (m_converter == iconv_t(-1)) // an unknown page; most files have this one
        m_converter = iconv_open("UTF-16LE", "CP1252");
}

OldTextReader::~OldTextReader()
{
    if (m_converter)
        iconv_close(m_converter);
}

std::optional<QString> OldTextReader::read(QByteArrayView bytes) const
{
    if (m_converter)
        return readCodePage(bytes);
    const bool isCompressed = bytes.size() >= 2 && bytes[0] == '\xff' && bytes[1] == '\xfe';
    return isCompressed ? fromUtf16(uncompressed(bytes)) : fromUtf16(bytes);
}

QString OldTextReader::readCodePage(QByteArrayView bytes) const
{
    if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return quint8(c) < 0x80; }))
        return QString::fromLatin1(bytes);
    std::vector<char16_t> out(std::size_t(bytes.size()) + 1);
    char *from = const_cast<char *>(bytes.data()); // iconv() does not write there
    char *to = reinterpret_cast<char *>(out.data());
    std::size_t fromLeft = std::size_t(bytes.size()), toLeft = out.size() * sizeof(char16_t);
    iconv(m_converter, nullptr, nullptr, nullptr, nullptr);
    while (iconv(m_converter, &from, &fromLeft, &to, &toLeft) == std::size_t(-1) && fromLeft > 0 && toLeft >= 2) {
        const char16_t character = quint8(*from++);
        --fromLeft;
        qToLittleEndian(character, to);
        to += sizeof character;
        toLeft -= sizeof character;
    }
    return *fromUtf16(QByteArrayView(reinterpret_cast<char *>(out.data()), to));
}

std::optional<Value> ReadOldValue(QByteArrayView bytes, OldType type, int scale, ColumnKind as,
                                  const OldTextReader &texts)
{
    if (type == OldType::Date)
        return as == ColumnKind::Date ? dayOf(momentIn(bytes)) : timeOf(momentIn(bytes));
    if (type == OldType::Text || type == OldType::Memo) {
        const auto text = texts.read(bytes);
        return text ? std::optional<Value>(*text) : std::nullopt;
    }
    const auto number = numberOf(bytes, type, scale);
    if (!number || as == ColumnKind::Double || as == ColumnKind::Integer)
        return number;
    return as == ColumnKind::Text ? Value(number->text()) : Value(number->toBool());
}
