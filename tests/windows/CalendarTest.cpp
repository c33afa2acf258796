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

/// Presses the arrow at an end of the month's scroll bar.
CalendarAction monthArrow(bool right)
{
    return [right](frm_Caltool &calendar) {
        QScrollBar &bar = *calendar.scrMonth;
        QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(right ? bar.width() - 4 : 4, bar.height() / 2));
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

CalendarAction yearFromMenu(const char *entry)
{
    return [entry](frm_Caltool &calendar) {
        calendar.panYear->setFocus();
        QTest::keyClick(calendar.panYear, Qt::Key_Space);
        ASSERT_TRUE(calendar.mnu_Year->isVisible());
        clickEntry(*calendar.mnu_Year, QLatin1String(entry));
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

/// Index of the first and the last cell with a day, where the cells between count up from 1 and all others are empty
/// and dead.
std::pair<int, int> daysShown(const frm_Caltool &calendar)
{
    int first = -1, last = -1;
    for (int i = 0; i < 42; ++i) {
        const QPushButton &cell = *calendar.cmdDay[size_t(i)];
        EXPECT_EQ(cell.isEnabled(), !cell.text().isEmpty()) << i;
        if (cell.text().isEmpty())
            continue;
        first = first < 0 ? i : first;
        last = i;
        EXPECT_EQ(cell.text().toInt(), i - first + 1);
    }
    return {first, last};
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
        {"01/31/2000", month(2), "02/29/2000"},
        {"03/31/2031", month(4), "04/30/2031"},
        {"01/31/1900", month(2), "02/28/1900"},
        {"02/29/96", year(1997), "02/28/1997"},
        {"02/29/96", year(2100), "02/28/2100"},
        {"12/15/98", monthArrow(true), "01/15/1998"}, // the ends wrap without the year
        {"01/15/98", monthArrow(false), "12/15/1998"},
        {"01/31/98", month(13), "01/31/1998"},
        {"01/31/98", month(0), "12/31/1998"},
        {"01/31/98", monthFromMenu("mnu_june"), "06/30/1998"},
        {"10/31/1905", monthFromMenu("mnu_Feb"), "02/28/1905"},
        {"02/29/96", yearFromMenu("mnu_2003"), "02/28/2003"},
        {"02/28/1931", yearFromMenu("mnu_1994"), "02/28/1994"},
        {"01/31/98", key(Qt::Key_Right), "02/01/1998"},
        {"12/31/1999", key(Qt::Key_Right), "01/01/2000"},
        {"01/01/2000", key(Qt::Key_Left), "12/31/1999"},
        {"03/01/1996", key(Qt::Key_Up), "02/23/1996"},
        {"05/31/2031", key(Qt::Key_Down), "06/07/2031"},
        {"02/10/1996", key(Qt::Key_End), "02/29/1996"},
        {"02/10/1996", key(Qt::Key_Home), "02/01/1996"},
        {"01/31/98", key(Qt::Key_PageDown), "02/28/1998"},
        {"02/29/96", key(Qt::Key_PageUp, Qt::ControlModifier), "02/28/1995"},
        {"01/01/0100", key(Qt::Key_Left), "01/01/0100"},
        {"12/31/9999", key(Qt::Key_Right), "12/31/9999"},
    };
    Keeper keeper;
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.from) + " to " + row.to);
        pick(keeper, QLatin1String(row.from), [&](frm_Caltool &calendar) {
            row.move(calendar);
            const QString shown = keeper.g().calendar.SelectedDate;
            EXPECT_EQ(shown, QLatin1String(row.to));
            EXPECT_EQ(calendar.lblReturnDate->text(), shown);
            EXPECT_EQ(calendar.panYear->text(), shown.right(4));
            EXPECT_EQ(calendar.scrYear->value(), shown.right(4).toInt());
            EXPECT_EQ(calendar.scrMonth->value(), shown.left(2).toInt());
            EXPECT_EQ(calendar.panMonth->text(), calendar.mnu_Month->actions().at(shown.left(2).toInt() - 1)->text());
            leave(calendar);
        });
    }
}

TEST(Calendar, ShowsTheDaysOfTheMonthFromSundayOn)
{
    const struct
    {
        const char *date;
        int first, last;
    } rows[] = {
        {"02/01/98", 0, 27},                          // four rows
        {"08/15/98", 6, 36},                          // begins on a Saturday: the sixth row
        {"02/10/1996", 4, 32},                        // leap year
        {"02/10/1997", 6, 33}, {"02/10/1900", 4, 32}, // read by its last two digits, the year is as long as 2000
        {"01/10/100", 5, 35},                         // where the scroll bars stand before they are set
        {"12/10/9999", 3, 33},
    };
    Keeper keeper;
    for (const auto &row : rows)
        pick(keeper, QLatin1String(row.date), [&](frm_Caltool &calendar) {
            EXPECT_EQ(daysShown(calendar), std::pair(row.first, row.last)) << row.date;
            leave(calendar);
        });
}

TEST(Calendar, AChosenDayComesOutWithItsCentury)
{
    const struct
    {
        const char *in;
        CalendarAction choose;
        const char *out;
    } rows[] = {
        {"08/15/98", day(36), "08/31/1998"},
        {"06/15/2031", day(0), "06/01/2031"},
        {"06/15/1905", key(Qt::Key_Return), "06/15/1905"},
        {"07/04/26", key(Qt::Key_Enter), "07/04/2026"},
        {"07/04/30", key(Qt::Key_Space), "07/04/1930"},
        {"02/10/1900", day(32), "02/28/1900"}, // the cell says 29, which that year did not have
    };
    Keeper keeper;
    for (const auto &row : rows) {
        EXPECT_EQ(pick(keeper, QLatin1String(row.in), row.choose), QLatin1String(row.out)) << row.in;
        EXPECT_FALSE(keeper.g().calendar.PickCancelled) << row.in;
    }
    const auto moveAndEnter = [](frm_Caltool &calendar) {
        month(2)(calendar);
        key(Qt::Key_Right)(calendar);
        key(Qt::Key_Return)(calendar);
    };
    EXPECT_EQ(pick(keeper, QStringLiteral("01/31/2031"), moveAndEnter), QStringLiteral("03/01/2031"));
}

TEST(Calendar, EveryOtherWayOutBringsTheDateOfEntryBack)
{
    const std::pair<const char *, CalendarAction> ways[] = {
        {"OK", leave},
        {"Enter on OK",
         [](frm_Caltool &calendar) {
             calendar.cmd_ok->setFocus();
             QTest::keyClick(calendar.cmd_ok, Qt::Key_Return);
         }},
        {"Esc", key(Qt::Key_Escape)},
        {"title bar", [](frm_Caltool &calendar) { calendar.close(); }},
        {"an empty cell, then OK",
         [](frm_Caltool &calendar) {
             day(41)(calendar);
             EXPECT_TRUE(calendar.isVisible());
             leave(calendar);
         }},
    };
    const std::pair<const char *, const char *> dates[] = {
        {"01/31/98", "01/31/1998"}, {"1/5/2031", "01/05/2031"}, {"02/30/98", "06/20/2026"},
        {"13/01/98", "06/20/2026"}, {"__/__/__", "06/20/2026"}, {"", "06/20/2026"},
    };
    Keeper keeper;
    keeper.doors.clock = QDateTime(QDate(2026, 6, 20), QTime(23, 59));
    for (const auto &[way, go] : ways) {
        for (const auto &[in, out] : dates) {
            SCOPED_TRACE(std::string(way) + ", " + in);
            pick(keeper, QStringLiteral("06/15/2031"), key(Qt::Key_Return)); // a choice made before does not count
            EXPECT_EQ(pick(keeper, QLatin1String(in),
                           [&go = go](frm_Caltool &calendar) {
                               calendar.scrMonth->setValue(5);
                               go(calendar);
                           }),
                      QLatin1String(out));
            EXPECT_TRUE(keeper.g().calendar.PickCancelled);
        }
    }
}

TEST(Calendar, SelectedDayHasTheFocusAndTodayIsTold)
{
    Keeper keeper;
    keeper.doors.clock = QDateTime(QDate(1998, 8, 15), QTime(12, 0));
    pick(keeper, QStringLiteral("08/31/98"), [](frm_Caltool &calendar) {
        const auto cell = [&](int i) { return calendar.cmdDay[size_t(i)]; };
        EXPECT_TRUE(cell(36)->hasFocus() && cell(36)->isDefault());
        EXPECT_EQ(cell(20)->accessibleDescription(), QStringLiteral("Today"));
        EXPECT_EQ(cell(20)->accessibleName(), QStringLiteral("Saturday 08/15/1998"));
        calendar.scrMonth->setValue(9); // cell 36 goes out of use; 09/30 is in cell 31
        EXPECT_TRUE(cell(31)->hasFocus() && cell(31)->isDefault());
        EXPECT_EQ(cell(16)->accessibleDescription(), QString());
        calendar.scrMonth->setFocus();
        calendar.scrMonth->setValue(10);
        EXPECT_TRUE(calendar.scrMonth->hasFocus()) << "the scroll bar is not robbed of the focus";
        leave(calendar);
    });
}

TEST(Calendar, StandsWhereTheCallerWants)
{
    Keeper keeper;
    const auto placeOf = [](int left, int top) {
        QPoint place;
        Keeper::inNext<frm_Caltool>([&](frm_Caltool &calendar) {
            place = calendar.pos();
            leave(calendar);
        });
        Form<frm_Caltool>().ShowCalendar(left, top);
        return place;
    };
    const QPoint unmoved = placeOf(0, 0);
    EXPECT_EQ(placeOf(1500, 3000), QPoint(100, 200)); // twips
    EXPECT_EQ(placeOf(-15, 10'000'000), unmoved);     // outside of the screen
}
