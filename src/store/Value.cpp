#include "store/Value.h"

#include <cmath>

#include "platform/core/RuntimeFailure.h"
#include "store/Iso.h"
#include "text/Dates.h"
#include "text/Numbers.h"

namespace {

[[noreturn]] void throwNotA(const Value &value, const char *what)
{
    if (value.isNull())
        throw RuntimeFailure(Failure::InvalidUseOfNull,
                             QStringLiteral("There is no value where a %1 is needed.").arg(QLatin1String(what)));
    throw RuntimeFailure(Failure::TypeMismatch,
                         QStringLiteral("\"%1\" is no %2.").arg(value.text(), QLatin1String(what)));
}

} // namespace

QString Value::text() const
{
    if (const auto *text = std::get_if<QString>(&m_value))
        return *text;
    if (const auto *number = std::get_if<qint64>(&m_value))
        return QString::number(*number);
    if (const auto *number = std::get_if<double>(&m_value))
        return PlainText(*number);
    if (const auto *date = std::get_if<QDate>(&m_value))
        return Format(*date, QStringLiteral("mm/dd/yyyy"));
    if (const auto *time = std::get_if<QTime>(&m_value))
        return Format(*time, QStringLiteral("hh:mm:ss AM/PM"));
    return {};
}

double Value::toDouble() const
{
    if (const auto *number = std::get_if<double>(&m_value))
        return *number;
    if (const auto *number = std::get_if<qint64>(&m_value))
        return double(*number);
    if (const auto *text = std::get_if<QString>(&m_value))
        if (const auto number = ReadNumber(*text))
            return *number;
    throwNotA(*this, "number");
}

QDate Value::toDate() const
{
    if (const auto *date = std::get_if<QDate>(&m_value))
        return *date;
    if (const auto *text = std::get_if<QString>(&m_value)) {
        if (const auto date = readIsoDate(text->toStdString()))
            return *date;
        if (const auto date = ReadDate(*text))
            return *date;
    }
    throwNotA(*this, "date");
}

QTime Value::toTime() const
{
    if (const auto *time = std::get_if<QTime>(&m_value))
        return *time;
    if (const auto *text = std::get_if<QString>(&m_value))
        if (const auto time = ReadTime(*text))
            return *time;
    throwNotA(*this, "time");
}
