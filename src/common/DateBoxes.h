// Date boxes that every tool has: two digits for day, month and year in the user's order, and a calendar beside them.
#pragma once

#include <QDate>

class MaskedBox;
struct Globals;
struct OptionsMembers;

/// Empties the box, gives it the user's delimiter between the digits, and makes it as wide as a date is in its font.
void UseDateOrder(MaskedBox &box, const OptionsMembers &options);

/// Shows the calendar on that month-first text, on today where it is no date. Gives the day that was chosen; where none
/// was (Globals::calendar tells), the day that it was shown on.
QDate AskCalendar(Globals &globals, const QString &monthFirst);
