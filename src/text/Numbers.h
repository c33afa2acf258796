// Numbers as text: the two tests that the windows use, and the pictures that show a number. A decimal point and
// thousands commas, whatever the system's locale.
#pragma once

#include <optional>

#include <QString>

/// Whether the whole text is a number, apart from blanks at its ends: an optional sign, digits with at most one decimal
/// point, thousands commas allowed, an optional exponent. An empty text is not a number.
bool IsNumeric(const QString &text);

/// The number at the start of the text; the rest is ignored: "12ab" is 12, "abc" and "" are 0. If the whole text is a
/// number, the result is that number: "1,000" is a thousand.
double Val(const QString &text);

/// The value of the whole text. Returns nothing if IsNumeric() is false or the value does not fit into a double.
std::optional<double> ReadNumber(const QString &text);

/// Like IsNumeric(), but refuses a number that is too far below 0 for a double. One that is too large passes, because
/// the upper limit of its box refuses it.
bool IsStorable(const QString &text);

/// Shows a number with a picture of 0, #, "." and ",", such as "##0.000" or "###,##0.00": rounded to the picture's
/// decimal places, halves away from zero, based on the number's decimal form (2.675 with "0.00" is "2.68"). A picture
/// never cuts off digits before the decimal point.
QString Format(double value, const QString &picture);

/// The plain text of a number, at most 15 digits: 8.4 is "8.4", 80 is "80".
QString PlainText(double value);
