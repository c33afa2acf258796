#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "common/CalendarControls.h"
#include "common/frm_Caltool.h"
#include "Keeper.h"

namespace {

using CalendarAction = std::function<void(frm_Caltool &)>;

CalendarAction month(int value)
{
    return [value](frm_Caltool &calendar) { calendar.scrMonth->setValue(value); };
}

CalendarAction year(int value)
{
    return [value](frm_Caltool &calendar) { calendar.scrYear->setValue(value); };
}

/// Presses the arrow at the right end of the month's scroll bar.
CalendarAction monthArrow()
{
    return [](frm_Caltool &calendar) {
        QScrollBar &bar = *calendar.scrMonth;
        QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(bar.width() - 4, bar.height() / 2));
    };
}

CalendarAction key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    return [key, modifiers](frm_Caltool &calendar) { QTest::keyClick(calendar.focusWidget(), key, modifiers); };
}

CalendarAction monthFromMenu(const char *entry)
{
    return [entry](frm_Caltool &calendar) {
        click(*calendar.panMonth);
        ASSERT_TRUE(calendar.mnu_Month->isVisible());
        clickEntry(*calendar.mnu_Month, QLatin1String(entry));
    };
}

CalendarAction day(int cell)
{
    return [cell](frm_Caltool &calendar) {
        QTest::mouseClick(&control<QPushButton>(calendar, QStringLiteral("cmdDay_%1").arg(cell)), Qt::LeftButton);
    };
}

void leave(frm_Caltool &calendar) { click(*calendar.cmd_ok); }

/// Shows the calendar on a date; the date that comes out.
QString pick(Keeper &keeper, const QString &date, const CalendarAction &action)
{
    keeper.g().calendar.SelectedDate = date;
    keeper.inNext<frm_Caltool>(action);
    Form<frm_Caltool>().ShowCalendar(0, 0);
    EXPECT_FALSE(Forms::current().loaded<frm_Caltool>());
    return keeper.g().calendar.SelectedDate;
}

} // namespace

TEST(Calendar, MovesThroughMonthsAndYears)
{
    const struct
    {
        const char *from;
        CalendarAction move;
        const char *to;
    } rows[] = {
        {"01/31/98", month(2), "02/28/1998"},
        {"02/29/96", year(2100), "02/28/2100"},
        {"12/15/98", monthArrow(), "01/15/1998"}, // the ends wrap without the year
        {"10/31/1905", monthFromMenu("mnu_Feb"), "02/28/1905"},
        {"12/31/1999", key(Qt::Key_Right), "01/01/2000"},
        {"03/01/1996", key(Qt::Key_Up), "02/23/1996"},
        {"02/29/96", key(Qt::Key_PageUp, Qt::ControlModifier), "02/28/1995"},
        {"01/01/0100", key(Qt::Key_Left), "01/01/0100"},
    };
    Keeper keeper;
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.from) + " to " + row.to);
        pick(keeper, QLatin1String(row.from), [&](frm_Caltool &calendar) {
            row.move(calendar);
            const QString shown = keeper.g().calendar.SelectedDate;
            EXPECT_EQ(shown, QLatin1String(row.to));
            EXPECT_EQ(calendar.lblReturnDate->text(), shown);
            EXPECT_EQ(calendar.scrMonth->value(), shown.left(2).toInt());
            leave(calendar);
        });
    }
}

TEST(Calendar, AChosenDayComesOutWithItsCentury)
{
    const std::tuple<const char *, CalendarAction, const char *> rows[] = {
        {"08/15/98", day(36), "08/31/1998"},
        {"07/04/26", key(Qt::Key_Enter), "07/04/2026"},
        {"07/04/30", key(Qt::Key_Space), "07/04/1930"},
        {"02/10/1900", day(32), "02/28/1900"}}; // the cell says 29, which that year did not have
    Keeper keeper;
    for (const auto &[in, choose, out] : rows) {
        EXPECT_EQ(pick(keeper, in, choose), out) << in;
        EXPECT_FALSE(keeper.g().calendar.PickCancelled) << in;
    }
}

TEST(Calendar, EveryOtherWayOutBringsTheDateOfEntryBack)
{
    const CalendarAction ways[] = {leave, key(Qt::Key_Escape), [](frm_Caltool &calendar) { calendar.close(); },
                                   [](frm_Caltool &calendar) {
                                       day(41)(calendar); // an empty cell
                                       leave(calendar);
                                   }};
    Keeper keeper;
    keeper.doors.clock = QDateTime(QDate(2026, 6, 20), QTime(23, 59));
    for (const auto &[in, out] : {std::pair("01/31/98", "01/31/1998"),
                                  {"1/5/2031", "01/05/2031"},
                                  {"02/30/98", "06/20/2026"},
                                  {"__/__/__", "06/20/2026"}})
        for (const CalendarAction &leaveBy : ways) {
            pick(keeper, QStringLiteral("06/15/2031"), key(Qt::Key_Return)); // a choice made before does not count
            const auto moveAndLeave = [&](frm_Caltool &calendar) {
                calendar.scrMonth->setValue(5);
                leaveBy(calendar);
            };
            EXPECT_EQ(pick(keeper, in, moveAndLeave), out);
            EXPECT_TRUE(keeper.g().calendar.PickCancelled);
        }
}
