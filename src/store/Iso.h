// Dates and times as they are stored: "YYYY-MM-DD" and "HH:MM:SS", so that the order by text is the order in time. Used
// by Rows, Value and the binding of parameters, and also for files that other programs read.
#pragma once

#include <optional>
#include <string_view>

#include <QByteArray>
#include <QDate>
#include <QTime>

/// Exactly "YYYY-MM-DD" of a day that exists, years 0001 to 9999.
std::optional<QDate> readIsoDate(std::string_view text);
/// Exactly "HH:MM:SS" of a time that exists.
std::optional<QTime> readIsoTime(std::string_view text);

/// Empty for an invalid date or time, and for a date after the year 9999.
QByteArray isoText(const QDate &date);
QByteArray isoText(const QTime &time);
