// Date boxes: masked boxes for a date, with two digits each for day, month and year in the user's date order. A
// calendar button stands beside each.
#pragma once

#include <optional>

#include <QDate>

class MaskedBox;
struct DateConventions;
struct Globals;
struct OptionsMembers;

/// Empties the box, sets its mask with the user's delimiter, and makes it wide enough for a date in its font.
void UseDateOrder(MaskedBox &box, const OptionsMembers &options);

/// Opens the calendar at `shown`, or at today if there is no date. Returns the day that was chosen, if any.
std::optional<QDate> AskCalendar(Globals &globals, const std::optional<QDate> &shown);

/// Puts the day into a date box. If the box would read it as another day, because its year has only two digits, a
/// message says so and the box keeps its text.
void PutDay(MaskedBox &box, const QDate &day, const DateConventions &dates);
