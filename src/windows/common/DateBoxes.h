// Date boxes that every tool has: two digits for day, month and year in the user's order, and a calendar beside them.
#pragma once

#include <optional>

#include <QDate>

class MaskedBox;
struct DateConventions;
struct Globals;
struct OptionsMembers;

/// Empties the box, gives it the user's delimiter between the digits, and makes it as wide as a date is in its font.
void UseDateOrder(MaskedBox &box, const OptionsMembers &options);

/// Shows the calendar on that day, on today where there is none. Gives the day that was chosen; nothing where none was.
std::optional<QDate> AskCalendar(Globals &globals, const std::optional<QDate> &shown);

/// Shows the day in a box whose text is read as typed. A day that the box would read as another, because its year has
/// only two digits, is told, and the box keeps what it had.
void PutDay(MaskedBox &box, const QDate &day, const DateConventions &dates);
