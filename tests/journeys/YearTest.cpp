// A year with two tanks. It begins with the choice of a date order; water is tested, animals are bought and moved, work
// is done each month, mistakes are corrected, and in the middle the program is restarted. At the end, after another
// start, the screen and the printouts must both show what was done. The test runs once for each date order.
#include <algorithm>

#include "text/Dates.h"
#include "windows/common/CalendarControls.h"
#include "windows/common/frm_Caltool.h"
#include "windows/Desk.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_LivesMove.h"
#include "windows/logbook/frm_MaintAddEdit.h"
#include "windows/logbook/frm_OMKLogPrint.h"
#include "windows/logbook/frm_WaterAddEdit.h"
#include "windows/shell/frm_OMKOptions.h"

/// Something that was done: the cells of its row after date and time, without empty ones at the end, such as "Tang
/// 4|3|Active".
struct Done
{
    QString tank;
    LogTab log;
    QDateTime when;
    QString text;
};

struct YearHabit
{
    const char *option, *order, *delimiter;
};

void PrintTo(const YearHabit &habit, std::ostream *out) { *out << habit.order; }

class Year : public Desk, public ::testing::WithParamInterface<YearHabit>
{
protected:
    void go(const QString &tank, LogTab log)
    {
        hand::clickTank(*logbook, tank);
        hand::clickTab(*logbook->tab_logtype, log);
    }
    QString moment(const QDate &date, const QTime &time) const
    {
        return Format(date, picture) + " - " + Format(time, "hh:mm:ss AM/PM") + '|';
    }

    void changeOptions();
    void measure(const QString &tank);
    void buy(const QString &tank, const QString &name);
    void work(const QString &tank, const QString &task);
    void move(const QString &fish, bool now);
    void liveThrough(int month);

    QStringList onScreen();
    QStringList onPaper(const QString &tank);

    const DateOrder order = ReadDateOrder(GetParam().order);
    const QString picture = MakeDatePicture(order, GetParam().delimiter);
    std::vector<Done> year;
};

void Year::changeOptions()
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
}

/// In even months the date is typed, in odd ones it is chosen in the calendar.
void Year::measure(const QString &tank)
{
    go(tank, WaterTab);
    const QDate today = keeper.doors.clock.date();
    const bool typed = today.month() % 2 == 0;
    const QDate day(2026, today.month(), typed ? 11 : 25);
    keeper.inNext<frm_WaterAddEdit>([&](frm_WaterAddEdit &w) {
        EXPECT_EQ(control<QLabel>(w, "Label15").text(), "Iron");
        if (typed) {
            hand::type(*w.txt_date, Format(day, picture));
        } else {
            keeper.inNext<frm_Caltool>([&](frm_Caltool &calendar) {
                EXPECT_EQ(calendar.lblReturnDate->text(), Format(today, "mm/dd/yyyy"));
                mouse::click(
                    *std::ranges::find(calendar.cmdDay, "25", [](DayButton *button) { return button->text(); }));
            });
            mouse::click(w.cmd_Caldate);
        }
        hand::type(control<QWidget>(w, "txt_ph"), "8.25");
        mouse::click(w.cmd_OK);
    });
    hand::press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(isInFront(*main));
    year.push_back({tank, WaterTab, QDateTime(day, keeper.doors.clock.time()), "8.25|0.000|0.000"});
}

void Year::buy(const QString &tank, const QString &name)
{
    go(tank, LivestockTab);
    give<frm_LivesAddEdit>("addentries", 0, [&](frm_LivesAddEdit &w) {
        hand::type(*w.lst_AnimalList, name);
        hand::type(*w.txt_quantity, "3");
        mouse::click(w.cmd_OK);
    });
    year.push_back({tank, LivestockTab, keeper.doors.clock, name + "|3"});
}

void Year::work(const QString &tank, const QString &task)
{
    go(tank, MaintenanceTab);
    give<frm_MaintAddEdit>("addentries", 0, [&](frm_MaintAddEdit &w) {
        hand::type(*w.lst_mainttasklist, task);
        hand::type(*w.txt_quantity, "12");
        mouse::click(w.cmd_OK);
    });
    QDateTime when = keeper.doors.clock;
    const QDate date = when.date(); // read month first if that gives a date
    if (order == DateOrder::DDMMYY && date.day() <= 12)
        when.setDate(QDate(date.year(), date.day(), date.month()));
    year.push_back({tank, MaintenanceTab, when, task + "|12"});
}

void Year::move(const QString &fish, bool now)
{
    go("Reef", LivestockTab);
    for (int row = 1; row <= list().Count(); ++row)
        if (list().Text(row, 1) == fish)
            hand::clickRow(list(), row);
    give<frm_LivesMove>("moveentries", 0, [&](frm_LivesMove &w) {
        if (now)
            mouse::click(w.chk_ChangeDate, QPoint(8, 8));
        const QListWidgetItem *same = w.lst_tanklist->findItems("Same", Qt::MatchExactly).at(0);
        mouse::doubleClick(w.lst_tanklist->viewport(), w.lst_tanklist->visualItemRect(same).center());
    });
    Done &moved = *std::ranges::find(year, fish + "|3", &Done::text); // the first one of that name
    moved.tank = "Same";
    if (now)
        moved.when = keeper.doors.clock;
}

void Year::liveThrough(int month)
{
    const QString number = QString::number(month);
    for (const QString tank : {"Reef", "Same"}) {
        keeper.doors.clock =
            QDateTime(QDate(2026, month, month % 2 ? 5 : 20), QTime(8 + month, tank == u"Reef" ? 7 : 30, month));
        if (month % 2 == 0 || month < 4)
            buy(tank, "Fish " + number);
        work(tank, "Test " + number);
        measure(tank);
    }
    if (month == 6)
        move("Fish 1", false);
    if (month == 7)
        move("Fish 3", true);
}

QStringList Year::onScreen()
{
    QStringList rows;
    for (int row = 1; row <= list().Count(); ++row) {
        rows << list().Text(row, 0).toUpper();
        for (const int cell : {1, 2, 3})
            if (const QString text = list().Text(row, cell); !text.isEmpty())
                rows.back() += '|' + text;
    }
    return rows;
}

/// What the report of the shown log for all tanks says about one tank.
QStringList Year::onPaper(const QString &tank)
{
    keeper.doors.documents.clear();
    keeper.doors.printers = {PrintDialogAnswer{1}};
    bool ofWork = false, ofTank = false;
    give<frm_OMKLogPrint>("printentries", 0, [&](frm_OMKLogPrint &w) {
        ofWork = w.opt_Maintenance->isChecked();
        mouse::click(w.chk_PrintForAllTanks, QPoint(8, 8));
        mouse::click(w.cmd_ok);
    });
    QStringList rows;
    for (const PrintedPage &page : keeper.doors.documents.at(0).pages) {
        if (page.find("Tankname: ")) // a page without headings continues the tank of the page before
            ofTank = page.find(tank) != nullptr;
        for (size_t i = 0; ofTank && i < page.texts.size(); ++i) {
            const PrintedText &text = page.texts[i];
            if (text.x > 0 || text.text.mid(8, 3) != u" - ")
                continue;
            rows << page.row(text.y);
            if (ofWork) // "12 litres what for" is below the task
                rows.back() += '|' + page.texts.at(i + 2).text.trimmed().replace("  ", "|");
        }
    }
    return rows;
}

TEST_P(Year, ScreenAndPaperSayWhatWasDone)
{
    changeOptions();
    for (int month = 1; month <= 12; ++month) {
        liveThrough(month);
        if (month % 6 != 0)
            continue;
        hand::choose(*main, *main->mnu_File, "mnu_Exit");
        keeper.restart();
        open("Reef");
    }
    EXPECT_EQ(year.size(), 2u * (8 + 12 + 12));
    std::ranges::stable_sort(year, {}, &Done::when);
    for (const QString tank : {"Reef", "Same"})
        for (const LogTab log : {WaterTab, LivestockTab, MaintenanceTab}) {
            SCOPED_TRACE(tank.toStdString() + ", tab " + std::to_string(log));
            QStringList expected;
            for (const Done &entry : year)
                if (entry.tank == tank && entry.log == log)
                    expected << moment(entry.when.date(), entry.when.time()) + entry.text;
            go(tank, log);
            EXPECT_EQ(onScreen(), expected);
            if (log != WaterTab) { // its values have columns of their own
                EXPECT_EQ(onPaper(tank), expected);
            }
        }
    EXPECT_TRUE(keeper.doors.boxes.empty() && keeper.doors.failures.empty());
}

INSTANTIATE_TEST_SUITE_P(Orders, Year,
                         ::testing::Values(YearHabit{"opt_Dateform_MMDDYY", "MMDDYY", "-"},
                                           YearHabit{"opt_Dateform_ddmmyy", "DDMMYY", "."},
                                           YearHabit{"opt_Dateform_YYMMDD", "YYMMDD", "/"}));
