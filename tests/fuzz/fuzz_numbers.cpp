// Fuzzes numbers as someone might type or store them.
#include <cmath>
#include <limits>

#include <QRegularExpression>

#include "Fuzzing.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Conversion.h"
#include "text/Numbers.h"

namespace {

constexpr double largest = std::numeric_limits<double>::max();

/// PlainText() shows at most 15 digits. Read back, they must give the number to that precision, and then the same text
/// again.
void checkPlainText(double number)
{
    const QString plain = PlainText(number);
    static const QRegularExpression noDigit(QStringLiteral("^-?0*\\.?0*|\\.|E.*"));
    FUZZ_REQUIRE(IsNumeric(plain) && QString(plain).remove(noDigit).size() <= 15, plain);
    if (std::abs(number) > 1.797693134862315e308)
        return; // rounded up, the digits would exceed the range of a double
    const auto back = ReadNumber(plain);
    FUZZ_REQUIRE(back && std::abs(*back - number) <= std::abs(number) * 1e-14, plain);
    FUZZ_REQUIRE(PlainText(*back) == plain, plain + u" and then " + PlainText(*back));
}

/// The number formats of the windows must round to their decimals and cut nothing off.
void checkPictures(double number)
{
    for (const auto &[ours, places] : {std::pair{"0", 0}, {"##0.0", 1}, {"##0.000", 3}, {"###,##0.00", 2}}) {
        const QString shown = Format(number, QLatin1String(ours));
        const auto back = ReadNumber(shown);
        const double slack = 0.5 * std::pow(10, -places) + std::abs(number) * 1e-14;
        FUZZ_REQUIRE(std::abs(number) > 1e300 || (back && std::abs(*back - number) <= slack * 1.0000001), shown);
    }
}

/// A column must accept a number within its range and refuse anything else.
void checkColumn(const QString &text, ColumnKind kind, double lowest, double highest)
{
    const auto number = ReadNumber(text);
    try {
        const double kept = converted(text, kind, QStringLiteral("column")).toDouble();
        FUZZ_REQUIRE(number && kept >= lowest && kept <= highest, text);
        FUZZ_REQUIRE(std::abs(kept - *number) <= (kind == ColumnKind::Integer ? 0.5 : 0), text);
    } catch (const RuntimeFailure &failure) {
        FUZZ_REQUIRE(!number || std::round(*number) < lowest || std::round(*number) > highest, text);
    }
}

} // namespace

void fuzz(Input &input, ScriptedDoors &)
{
    const QString text = input.line();
    const auto number = ReadNumber(text);
    const double start = Val(text);
    FUZZ_REQUIRE(IsNumeric(text) || !number, text);
    FUZZ_REQUIRE(std::isfinite(start) && (!number || start == *number), text);
    FUZZ_REQUIRE(number || !IsNumeric(text) || std::abs(start) == largest, text);
    checkColumn(text, ColumnKind::Integer, -2147483648.0, 2147483647.0);
    checkColumn(text, ColumnKind::Double, -largest, largest);
    const double bits = std::bit_cast<double>(std::uint64_t(input.number(4)) << 32 | input.number(4));
    FUZZ_REQUIRE(std::isfinite(bits) || Format(bits, "0.00") == PlainText(bits), text);
    for (const double value : {start, std::isfinite(bits) ? bits : 0}) {
        checkPlainText(value);
        checkPictures(value);
    }
}
