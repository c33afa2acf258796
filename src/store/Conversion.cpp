#include "store/Conversion.h"

#include <cmath>
#include <limits>

#include "platform/core/RuntimeFailure.h"
#include "text/Dates.h"
#include "text/Numbers.h"

namespace {

[[noreturn]] void refuse(Failure failure, const Value &value, const QString &column)
{
    throw RuntimeFailure(failure, QStringLiteral("\"%1\" cannot be put into the column %2.").arg(value.text(), column));
}

Value asDate(const Value &value, const QString &column)
{
    std::optional<QDate> date;
    if (const auto *given = std::get_if<QDate>(&value.variant()))
        date = *given;
    else if (const auto *text = std::get_if<QString>(&value.variant()))
        date = ReadDate(*text);
    if (!date || !date->isValid() || date->year() < 1 || date->year() > 9999)
        refuse(Failure::DataTypeConversion, value, column);
    return *date;
}

Value asTime(const Value &value, const QString &column)
{
    std::optional<QTime> time;
    if (const auto *given = std::get_if<QTime>(&value.variant()))
        time = *given;
    else if (const auto *text = std::get_if<QString>(&value.variant()))
        time = ReadTime(*text);
    if (!time || !time->isValid())
        refuse(Failure::DataTypeConversion, value, column);
    return QTime(time->hour(), time->minute(), time->second());
}

double asNumber(const Value &value, const QString &column)
{
    double number = 0;
    if (const auto *whole = std::get_if<qint64>(&value.variant())) {
        number = double(*whole);
    } else if (const auto *given = std::get_if<double>(&value.variant())) {
        number = *given;
    } else if (const auto *text = std::get_if<QString>(&value.variant()); text && IsNumeric(*text)) {
        number = ReadNumber(*text).value_or(std::numeric_limits<double>::infinity());
    } else {
        refuse(Failure::DataTypeConversion, value, column);
    }
    if (!std::isfinite(number))
        refuse(Failure::Overflow, value, column);
    return number;
}

Value asInteger(const Value &value, const QString &column)
{
    const double number = std::round(asNumber(value, column));
    if (number < std::numeric_limits<qint32>::min() || number > std::numeric_limits<qint32>::max())
        refuse(Failure::Overflow, value, column);
    return qint64(number);
}

} // namespace

Value converted(const Value &value, ColumnKind kind, const QString &column)
{
    if (value.isNull())
        return value;
    switch (kind) {
    case ColumnKind::None: return value;
    case ColumnKind::Boolean: return asNumber(value, column) != 0;
    case ColumnKind::Integer: return asInteger(value, column);
    case ColumnKind::Double: return asNumber(value, column);
    case ColumnKind::Date: return asDate(value, column);
    case ColumnKind::Time: return asTime(value, column);
    case ColumnKind::Text: return value.text();
    }
    return value;
}
