#include "Keeper.h"
#include "platform/controls/MaskedBox.h"
#include "windows/common/DateBoxes.h"
#include "windows/common/frm_Caltool.h"

namespace {

using CalendarAction = std::function<void(frm_Caltool &)>;

CalendarAction scroll(QScrollBar *frm_Caltool::*bar, int value)
{
    return [=](frm_Caltool &calendar) { (calendar.*bar)->setValue(value); };
}

CalendarAction key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    return [=](frm_Caltool &calendar) { QTest::keyClick(calendar.focusWidget(), key, modifiers); };
}

CalendarAction press(const char *button)
{
    return [button](frm_Caltool &calendar) { click(control<QPushButton>(calendar, button)); };
}

void february(frm_Caltool &calendar) { control<QAction>(calendar, "mnu_Feb").trigger(); }

} // namespace

TEST(Calendar, ADayIsChosenWithItsCenturyAndEveryOtherWayBringsTheDateOfEntryBack)
{
    const struct
    {
        const char *in;
        CalendarAction move, choose;
        const char *out;
        bool cancelled = false;
    } rows[] = {
        {"01/31/98", scroll(&frm_Caltool::scrMonth, 2), key(Qt::Key_Enter), "02/28/1998"},
        {"02/29/96", scroll(&frm_Caltool::scrYear, 2100), key(Qt::Key_Space), "02/28/2100"},
        {"12/15/98", scroll(&frm_Caltool::scrMonth, 13), key(Qt::Key_Enter), "01/15/1998"}, // within the year
        {"10/31/1905", february, key(Qt::Key_Enter), "02/28/1905"},
        {"12/31/1999", key(Qt::Key_Right), key(Qt::Key_Enter), "01/01/2000"},
        {"02/28/29", key(Qt::Key_PageUp, Qt::ControlModifier), key(Qt::Key_Enter), "02/28/2028"},
        {"01/01/0100", key(Qt::Key_Left), key(Qt::Key_Enter), "01/01/0100"},
        {"08/15/30", key(Qt::Key_Home), press("cmdDay_35"), "08/31/1930"},
        {"02/10/1900", key(Qt::Key_Home), press("cmdDay_32"),
         "02/28/1900"}, // the cell says 29, a day that did not exist
        {"1/5/2031", scroll(&frm_Caltool::scrMonth, 5), press("cmd_ok"), "01/05/2031", true},
        {"1/5/2031", press("cmdDay_41"), press("cmd_ok"), "01/05/2031", true},     // an empty cell
        {"02/30/98", key(Qt::Key_Right), key(Qt::Key_Escape), "03/14/2026", true}, // today
        {"__/__/__", key(Qt::Key_Down), &QWidget::close, "03/14/2026", true},
    };
    Keeper keeper;
    for (const auto &[in, move, choose, out, cancelled] : rows) {
        SCOPED_TRACE(in);
        keeper.g().calendar.SelectedDate = in;
        keeper.inNext<frm_Caltool>([&move, &choose](frm_Caltool &calendar) {
            move(calendar);
            EXPECT_EQ(calendar.scrMonth->value(), calendar.lblReturnDate->text().left(2).toInt());
            choose(calendar);
        });
        Form<frm_Caltool>().ShowCalendar(0, 0);
        EXPECT_EQ(keeper.g().calendar.SelectedDate, out);
        EXPECT_EQ(keeper.g().calendar.PickCancelled, cancelled);
    }
}

TEST(Calendar, ADayThatTheBoxWouldReadAsAnotherIsToldAndTheBoxKeepsWhatItHad)
{
    Keeper keeper;
    MaskedBox box;
    box.setMask("##.##.##");
    for (const auto &[year, held, told] : {std::tuple(2029, "31.12.29", "0"),
                                           {2030, "31.12.29", "0|Oops!/64/This date box cannot hold 31.12.2030. "},
                                           {1930, "31.12.30", "0"},
                                           {1929, "31.12.30", "0|Oops!/64/This date box cannot hold 31.12.1929. "}}) {
        PutDay(box, {year, 12, 31}, {DateOrder::DDMMYY, "DD.MM.YY"});
        EXPECT_EQ(box.Text(), held);
        EXPECT_TRUE(keeper.told().startsWith(told));
    }
}
