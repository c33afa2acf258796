#include "Keeper.h"
#include "platform/controls/MaskedBox.h"
#include "windows/common/CalendarControls.h"
#include "windows/common/DateBoxes.h"
#include "windows/common/frm_Caltool.h"
#include "windows/logbook/frm_WaterAddEdit.h"

namespace {

using CalendarAction = std::function<void(frm_Caltool &)>;

CalendarAction scroll(QScrollBar *frm_Caltool::*bar, int value)
{
    return [=](frm_Caltool &calendar) { (calendar.*bar)->setValue(value); };
}

/// Presses the arrow at the right end of the month's scroll bar.
void monthArrow(frm_Caltool &calendar)
{
    QScrollBar &bar = *calendar.scrMonth;
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(bar.width() - 4, bar.height() / 2));
}

CalendarAction key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    return [=](frm_Caltool &calendar) { QTest::keyClick(calendar.focusWidget(), key, modifiers); };
}

void february(frm_Caltool &calendar)
{
    click(*calendar.panMonth);
    clickEntry(*calendar.mnu_Month, "mnu_Feb");
}

CalendarAction day(int cell)
{
    return [cell](frm_Caltool &calendar) { QTest::mouseClick(calendar.cmdDay[size_t(cell)], Qt::LeftButton); };
}

void leave(frm_Caltool &calendar) { click(*calendar.cmd_ok); }

/// Opens the calendar at a date, and returns the date that comes out.
QString pick(Keeper &keeper, const QString &date, const CalendarAction &action)
{
    keeper.g().calendar.SelectedDate = date;
    keeper.inNext<frm_Caltool>(action);
    Form<frm_Caltool>().ShowCalendar(0, 0);
    return keeper.g().calendar.SelectedDate;
}

} // namespace

TEST(Calendar, MovesThroughMonthsAndYears)
{
    const std::tuple<const char *, CalendarAction, QString> rows[] = {
        {"01/31/98", scroll(&frm_Caltool::scrMonth, 2), "02/28/1998"},
        {"02/29/96", scroll(&frm_Caltool::scrYear, 2100), "02/28/2100"},
        {"12/15/98", monthArrow, "01/15/1998"}, // the months wrap within the year
        {"10/31/1905", february, "02/28/1905"},
        {"12/31/1999", key(Qt::Key_Right), "01/01/2000"},
        {"03/01/1996", key(Qt::Key_Up), "02/23/1996"},
        {"02/29/96", key(Qt::Key_PageUp, Qt::ControlModifier), "02/28/1995"},
        {"01/01/0100", key(Qt::Key_Left), "01/01/0100"},
    };
    Keeper keeper;
    for (const auto &[from, move, to] : rows)
        pick(keeper, from, [&, move = move, to = to](frm_Caltool &calendar) {
            move(calendar);
            EXPECT_EQ(keeper.g().calendar.SelectedDate, to);
            EXPECT_EQ(calendar.lblReturnDate->text(), to);
            EXPECT_EQ(calendar.scrMonth->value(), to.left(2).toInt());
            leave(calendar);
        });
}

TEST(Calendar, AChosenDayComesOutWithItsCenturyAndEveryOtherWayBringsTheDateOfEntryBack)
{
    const std::tuple<const char *, CalendarAction, const char *, bool> rows[] = {
        {"08/15/98", day(36), "08/31/1998", false},
        {"07/04/26", key(Qt::Key_Enter), "07/04/2026", false},
        {"07/04/30", key(Qt::Key_Space), "07/04/1930", false},
        {"02/10/1900", day(32), "02/28/1900", false}, // the cell says 29, a day that did not exist in that year
        {"1/5/2031", leave, "01/05/2031", true},
        {"02/30/98", key(Qt::Key_Escape), "03/14/2026", true}, // today
        {"__/__/__", [](frm_Caltool &calendar) { calendar.close(); }, "03/14/2026", true},
    };
    Keeper keeper;
    for (const auto &[in, choose, out, cancelled] : rows) {
        const auto moveAndChoose = [&, choose = choose, cancelled = cancelled](frm_Caltool &calendar) {
            if (cancelled) {
                calendar.scrMonth->setValue(5);
                day(41)(calendar); // an empty cell
            }
            choose(calendar);
        };
        EXPECT_EQ(pick(keeper, in, moveAndChoose), out);
        EXPECT_EQ(keeper.g().calendar.PickCancelled, cancelled) << in;
    }
}

TEST(Calendar, ADayThatTheBoxWouldReadAsAnotherIsToldAndTheBoxKeepsWhatItHad)
{
    const std::tuple<DateOrder, const char *, QDate, const char *> rows[] = {
        {DateOrder::MMDDYY, "/", {2029, 12, 31}, "12/31/29"},
        {DateOrder::MMDDYY, "/", {2030, 1, 1}, "01/01/2030"}, // the message has the whole year
        {DateOrder::DDMMYY, ".", {1930, 1, 31}, "31.01.30"},
        {DateOrder::DDMMYY, ".", {1929, 12, 31}, "31.12.1929"},
        {DateOrder::YYMMDD, "-", {2126, 3, 14}, "2126-03-14"},
    };
    Keeper keeper;
    for (const auto &[order, delimiter, day, shown] : rows) {
        MaskedBox box;
        OptionsMembers options;
        options.DateDelimiter = delimiter;
        UseDateOrder(box, options);
        const QString before = Format(QDate(2001, 1, 1), MakeDatePicture(order, delimiter));
        box.setText(before);
        PutDay(box, day, {order, MakeDatePicture(order, delimiter)});
        const bool held = strlen(shown) == 8;
        EXPECT_EQ(box.Text(), held ? shown : before);
        const QString told = keeper.told();
        EXPECT_EQ(told == "0", held);
        EXPECT_TRUE(held || told.startsWith(QString("0|Oops!/64/This date box cannot hold %1. ").arg(shown)));
    }
}

TEST(Calendar, OfAnEntryFillsItsBox)
{
    Keeper keeper;
    keeper.addTank("Reef", "r1");
    keeper.startProgram();
    auto &entry = Form<frm_WaterAddEdit>();
    for (const auto &[choose, text] : {std::pair(day(20), "03/21/26"), {leave, "03/14/26"}}) {
        entry.txt_date->setText("");
        keeper.inNext<frm_Caltool>(choose);
        entry.cmd_Caldate->click();
        EXPECT_EQ(entry.txt_date->Text(), text) << "without a choice, an empty box gets the date of today";
    }
    Unload(entry);
}
