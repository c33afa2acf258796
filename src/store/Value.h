// One value of a column: nothing (Null), a whole number, a number, a text, a date or a time of day. It is read from a
// Field or bound to a parameter of a statement. Reading it as a type that it does not have throws a RuntimeFailure.
#pragma once

#include <variant>

#include <QDate>
#include <QString>
#include <QTime>

class Value
{
public:
    Value() = default; ///< Null
    Value(qint64 number) : m_value(number) {}
    Value(int number) : m_value(qint64{number}) {}
    Value(bool flag) : m_value(qint64{flag}) {}
    Value(double number) : m_value(number) {}
    Value(const QString &text) : m_value(text) {}
    Value(const char *) = delete;
    Value(const QDate &date) : m_value(date) {}
    Value(const QTime &time) : m_value(time) {}

    bool isNull() const { return std::holds_alternative<std::monostate>(m_value); }
    /// The value as text: "" for Null, a number in its plain form, a date as "mm/dd/yyyy", a time as "hh:mm:ss AM/PM".
    QString text() const;
    /// For Null, toDouble() throws InvalidUseOfNull and toDoubleOr() returns the given number. Both throw TypeMismatch
    /// for a text that is not a number.
    double toDouble() const;
    double toDoubleOr(double ifNull) const { return isNull() ? ifNull : toDouble(); }
    bool toBool() const { return !isNull() && toDouble() != 0; }
    QDate toDate() const;
    QTime toTime() const;

    bool operator==(const Value &) const = default;

    using Variant = std::variant<std::monostate, qint64, double, QString, QDate, QTime>;
    const Variant &variant() const { return m_value; }

private:
    Variant m_value;
};
