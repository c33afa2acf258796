// A keeper's first day, and the morning after: from a new file without a tank to a logbook that he finds as he left it.
// Once in each order of dates, with days that could be months and days that could not.
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "common/CalendarControls.h"
#include "common/frm_Caltool.h"
#include "logbook/frm_WaterAddEdit.h"
#include "platform/MaskedBox.h"
#include "shell/frm_OMKOptions.h"
#include "tanks/frm_TankAddNew.h"
#include "tanks/frm_TankMaint.h"
#include "windows/Hands.h"

struct DateHabit
{
    const char *option, *delimiter;
    const char *inFile;                        ///< the date of a row in that order, made by the engine
    const char *april5, *december11, *march25; ///< as this keeper writes them, in 2026
};

void PrintTo(const DateHabit &habit, std::ostream *out) { *out << habit.april5; }

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

    /// Dates, pH and comments of the list, in its order, and the same of the file by date.
    QString onScreen() const
    {
        QStringList rows;
        for (int row = 1; row <= logbook->lstv_WaterLog->Count(); ++row)
            rows << logbook->lstv_WaterLog->Text(row, 0).left(8) + ' ' + logbook->lstv_WaterLog->Text(row, 1) + ' ' +
                        logbook->lstv_WaterLog->Text(row, 14);
        return rows.join(u'|');
    }
    QString inFile()
    {
        const QString row = QString(GetParam().inFile) + " || printf(' %.2f ', ph) || Comment";
        return keeper.stored(
            "SELECT group_concat(r, '|') AS t FROM (SELECT " + row + " AS r FROM WATERLOG ORDER BY logdate)", "t");
    }

    Keeper keeper;
    frm_OMKMDIMain *main = nullptr;
    frm_Waterlog *logbook = nullptr;
};

void FirstDay::setUpTank()
{
    EXPECT_TRUE(keeper.told().startsWith("1|No Tanks Set Up Yet/48/"));
    keeper.inNext<frm_TankMaint>([&](frm_TankMaint &list) {
        keeper.inNext<frm_TankAddNew>([](frm_TankAddNew &w) {
            hand::type(*w.txt_tankname, "Nan's Reef");
            hand::type(*w.txt_tanksize, "90");
            hand::step(w, "ud_tanksize", "up");
            mouse::click(w.opt_Reef, QPoint(8, 8));
            hand::type(*w.txt_tanknotes, "Skimmer\nTwo pumps");
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
}

TEST_P(FirstDay, EndsAsItIsFoundInTheMorning)
{
    main = &keeper.startProgram();
    setUpTank();
    logbook = &hand::openLogbook(*main);
    hand::clickTank(*logbook, "Nan's Reef");

    inEntry(Qt::Key_N, [](frm_WaterAddEdit &w) { // before he has told how he writes his dates
        hand::type(*w.txt_date, "04/05/26");
        hand::type(control<QWidget>(w, "txt_ph"), "8.25");
        hand::type(*w.txt_Comment, "first");
    });
    changeOptions();
    hand::clickTank(*logbook, "Nan's Reef");
    EXPECT_EQ(onScreen(), QString(GetParam().april5) + " 8.25 first");

    inEntry(Qt::Key_N, [this](frm_WaterAddEdit &w) { // typed
        EXPECT_EQ(control<QLabel>(w, "Label15").text(), "Iron");
        hand::type(*w.txt_date, GetParam().december11);
        hand::type(control<QWidget>(w, "txt_ph"), "10");
        hand::type(control<QWidget>(w, "txt_user1"), "0.02");
        hand::type(*w.txt_Comment, "typed");
    });
    inEntry(Qt::Key_N, [this](frm_WaterAddEdit &w) { // dated by the calendar, stepped
        keeper.inNext<frm_Caltool>([](frm_Caltool &calendar) {
            EXPECT_EQ(calendar.lblReturnDate->text(), "03/14/2026");
            for (DayButton *day : calendar.cmdDay)
                if (day->text() == u"25")
                    return mouse::click(day);
        });
        mouse::click(w.cmd_Caldate);
        EXPECT_EQ(w.txt_date->FormattedText(), GetParam().march25);
        hand::step(w, "ud_Ph", "up");
        hand::type(*w.txt_Comment, "stepped");
    });
    hand::clickRow(*logbook->lstv_WaterLog, 3);
    inEntry(Qt::Key_O, [](frm_WaterAddEdit &w) { // opened by Ctrl+O and changed
        EXPECT_EQ(w.txt_date->FormattedText(), GetParam().december11);
        hand::type(*w.txt_Comment, "changed");
    });
    const QString left = QString(GetParam().march25) + " 8.50 stepped|" + GetParam().april5 + " 8.25 first|" +
                         GetParam().december11 + " 10.00 changed";
    EXPECT_EQ(onScreen(), left);
    EXPECT_EQ(inFile(), left);
    EXPECT_EQ(keeper.count("WATERLOG WHERE custom1 = 0.02 AND tankname = (SELECT tankid FROM TANKLST)"), 1);
    hand::choose(*main, *main->mnu_File, "mnu_Exit");
    EXPECT_FALSE(main->isVisible());

    keeper.restart(); // the morning after
    main = &keeper.startProgram();
    logbook = &hand::openLogbook(*main);
    hand::clickTank(*logbook, "Nan's Reef");
    EXPECT_EQ(onScreen(), left);
    keeper.inNext<frm_TankAddNew>([](frm_TankAddNew &w) {
        EXPECT_EQ(w.txt_tanksize->text() + w.txt_tanknotes->toPlainText(), "91Skimmer\nTwo pumps");
        EXPECT_TRUE(w.opt_Reef->isChecked());
        hand::press(Qt::Key_Escape);
    });
    hand::clickTank(*logbook, "Nan's Reef", Qt::RightButton);
    clickEntry(*main->mnu_tankPopup, "mnu_TankProperties");
    EXPECT_TRUE(isInFront(*main));
    EXPECT_EQ(keeper.told(), "0");
}

INSTANTIATE_TEST_SUITE_P(
    Orders, FirstDay,
    ::testing::Values(DateHabit{"opt_Dateform_MMDDYY", "-", "strftime('%m-%d-', logdate) || substr(logdate, 3, 2)",
                                "04-05-26", "12-11-26", "03-25-26"},
                      DateHabit{"opt_Dateform_ddmmyy", ".", "strftime('%d.%m.', logdate) || substr(logdate, 3, 2)",
                                "05.04.26", "11.12.26", "25.03.26"},
                      DateHabit{"opt_Dateform_YYMMDD", "/", "substr(logdate, 3, 2) || strftime('/%m/%d', logdate)",
                                "26/04/05", "26/12/11", "26/03/25"}));
