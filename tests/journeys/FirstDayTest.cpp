// A keeper's first day, and the morning after: from a new file without a tank to a logbook that he finds as he left it.
// Once in each order of dates, with days that could be months and days that could not.
#include <QLabel>

#include "common/CalendarControls.h"
#include "common/frm_Caltool.h"
#include "logbook/frm_WaterAddEdit.h"
#include "shell/frm_OMKOptions.h"
#include "tanks/frm_TankAddNew.h"
#include "tanks/frm_TankMaint.h"
#include "text/Dates.h"
#include "windows/Desk.h"

struct DateHabit
{
    const char *option, *order, *delimiter;
};

void PrintTo(const DateHabit &habit, std::ostream *out) { *out << habit.order; }

class FirstDay : public ::testing::TestWithParam<DateHabit>
{
protected:
    void setUpTank();
    void changeOptions();
    /// Opens an entry window with Ctrl and that key, works in it, and ends with OK.
    void inEntry(Qt::Key key, const std::function<void(frm_WaterAddEdit &)> &work)
    {
        keeper.inNext<frm_WaterAddEdit>([&](frm_WaterAddEdit &w) {
            work(w);
            mouse::click(w.cmd_OK);
        });
        hand::press(key, Qt::ControlModifier);
        EXPECT_TRUE(isInFront(*main));
    }
    /// A day of 2026 as this keeper writes it.
    QString day(int month, int day) const
    {
        return Format(QDate(2026, month, day), MakeDatePicture(GetParam().order, GetParam().delimiter));
    }
    /// Dates, pH and comments of the list, in its order.
    QString onScreen() const
    {
        QStringList rows;
        for (int row = 1; row <= logbook->lstv_WaterLog->Count(); ++row)
            rows << logbook->lstv_WaterLog->Text(row, 0).left(8) + ' ' + logbook->lstv_WaterLog->Text(row, 1) + ' ' +
                        logbook->lstv_WaterLog->Text(row, 14);
        return rows.join(u'|');
    }

    Keeper keeper;
    frm_OMKMDIMain *main = nullptr;
    frm_Waterlog *logbook = nullptr;
};

void FirstDay::setUpTank()
{
    keeper.inNext<frm_TankMaint>([&](frm_TankMaint &list) {
        keeper.inNext<frm_TankAddNew>([](frm_TankAddNew &w) {
            hand::type(*w.txt_tankname, "Nan's Reef");
            mouse::click(w.opt_Reef, QPoint(8, 8));
            mouse::click(w.cmd_OK);
        });
        mouse::click(list.cmd_AddTank);
        mouse::click(list.cmd_ok);
    });
    hand::click<QToolButton>(*main, "tanksetup");
}

void FirstDay::changeOptions()
{
    keeper.inNext<frm_OMKOptions>([](frm_OMKOptions &w) {
        mouse::click(&control<QRadioButton>(w, GetParam().option), QPoint(8, 8));
        w.cbo_Delimiter->setFocus();
        hand::press(Qt::Key_Home);
        while (w.cbo_Delimiter->currentText() != GetParam().delimiter && w.cbo_Delimiter->currentIndex() < 2)
            hand::press(Qt::Key_Down);
        hand::type(*w.txt_username1, "Iron");
        mouse::click(w.cmdOK);
    });
    hand::choose(*main, *main->mnu_View, "mnu_ViewOptions");
    EXPECT_TRUE(isInFront(*main));
    hand::clickTank(*logbook, "Nan's Reef");
}

TEST_P(FirstDay, EndsAsItIsFoundInTheMorning)
{
    main = &keeper.startProgram();
    EXPECT_TRUE(keeper.told().startsWith("1|No Tanks Set Up Yet/48/"));
    setUpTank();
    logbook = &hand::openLogbook(*main);
    hand::clickTank(*logbook, "Nan's Reef");

    inEntry(Qt::Key_N, [](frm_WaterAddEdit &w) { // before he has told how he writes his dates
        hand::type(*w.txt_date, "04/05/26");
        hand::type(control<QWidget>(w, "txt_ph"), "8.25");
        hand::type(*w.txt_Comment, "first");
    });
    changeOptions();
    EXPECT_EQ(onScreen(), day(4, 5) + " 8.25 first");

    inEntry(Qt::Key_N, [this](frm_WaterAddEdit &w) { // typed
        EXPECT_EQ(control<QLabel>(w, "Label15").text(), "Iron");
        hand::type(*w.txt_date, day(12, 11));
        hand::type(control<QWidget>(w, "txt_ph"), "10");
        hand::type(*w.txt_Comment, "typed");
    });
    inEntry(Qt::Key_N, [this](frm_WaterAddEdit &w) { // dated by the calendar, stepped
        keeper.inNext<frm_Caltool>([](frm_Caltool &calendar) {
            EXPECT_EQ(calendar.lblReturnDate->text(), "03/14/2026");
            mouse::click(*std::ranges::find(calendar.cmdDay, "25", [](DayButton *button) { return button->text(); }));
        });
        mouse::click(w.cmd_Caldate);
        EXPECT_EQ(w.txt_date->FormattedText(), day(3, 25));
        hand::step(w, "ud_Ph", "up");
        hand::type(*w.txt_Comment, "stepped");
    });
    hand::clickRow(*logbook->lstv_WaterLog, 3);
    inEntry(Qt::Key_O, [this](frm_WaterAddEdit &w) { // opened by Ctrl+O and changed
        EXPECT_EQ(w.txt_date->FormattedText(), day(12, 11));
        hand::type(*w.txt_Comment, "changed");
    });
    const QString left = day(3, 25) + " 8.50 stepped|" + day(4, 5) + " 8.25 first|" + day(12, 11) + " 10.00 changed";
    EXPECT_EQ(onScreen(), left);
    EXPECT_EQ(keeper.stored("group_concat(d) AS x FROM (SELECT logdate AS d FROM WATERLOG ORDER BY d)"),
              "2026-03-25,2026-04-05,2026-12-11");
    hand::choose(*main, *main->mnu_File, "mnu_Exit");
    EXPECT_FALSE(main->isVisible());

    keeper.restart(); // the morning after
    main = &keeper.startProgram();
    logbook = &hand::openLogbook(*main);
    hand::clickTank(*logbook, "Nan's Reef");
    EXPECT_EQ(onScreen(), left);
    EXPECT_EQ(keeper.told(), "0");
}

INSTANTIATE_TEST_SUITE_P(Orders, FirstDay,
                         ::testing::Values(DateHabit{"opt_Dateform_MMDDYY", "MMDDYY", "-"},
                                           DateHabit{"opt_Dateform_ddmmyy", "DDMMYY", "."},
                                           DateHabit{"opt_Dateform_YYMMDD", "YYMMDD", "/"}));
