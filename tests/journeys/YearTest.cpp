// A year with two tanks. Water is tested and work is done each month, animals are bought, and one is moved; in the
// middle the program is restarted. At the end, after another start, the screen and the printouts must both show what
// was done. The test runs once for each date order.
#include <algorithm>

#include "text/Dates.h"
#include "windows/AllWindows.h"
#include "windows/Desk.h"

/// Something that was done: the cells of its row after date and time, without empty ones at the end, such as "Tang
/// 4|3|Active".
struct Done
{
    QString tank;
    LogTab log;
    QDateTime when;
    QString text;
};

class Year : public Desk, public ::testing::WithParamInterface<std::pair<const char *, const char *>>
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

    void measure(const QString &tank);
    void buy(const QString &tank, const QString &name);
    void work(const QString &tank, const QString &task);
    void move(const QString &fish);
    void liveThrough(int month);

    QStringList onScreen();
    QStringList onPaper(const QString &tank);

    const DateOrder order = ReadDateOrder(GetParam().first);
    const QString picture = MakeDatePicture(order, GetParam().second);
    std::vector<Done> year;
};

void Year::measure(const QString &tank)
{
    go(tank, WaterTab);
    const QDate day(2026, keeper.doors.clock.date().month(), 11);
    give<frm_WaterAddEdit>("addentries", 0, [&](frm_WaterAddEdit &w) {
        hand::type(*w.txt_date, Format(day, picture));
        hand::type(control<QWidget>(w, "txt_ph"), "8.25");
        mouse::click(w.cmd_OK);
    });
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

void Year::move(const QString &fish)
{
    go("Reef", LivestockTab);
    for (int row = 1; row <= list().Count(); ++row)
        if (list().Text(row, 1) == fish)
            hand::clickRow(list(), row);
    give<frm_LivesMove>("moveentries", 0, [&](frm_LivesMove &w) {
        const QListWidgetItem *same = w.lst_tanklist->findItems("Same", Qt::MatchExactly).at(0);
        mouse::doubleClick(w.lst_tanklist->viewport(), w.lst_tanklist->visualItemRect(same).center());
    });
    Done &moved = *std::ranges::find(year, fish + "|3", &Done::text); // the first one of that name
    moved.tank = "Same";
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
        move("Fish 1");
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
    startWith(GetParam().first, GetParam().second);
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
                         ::testing::Values(std::pair("MMDDYY", "-"), std::pair("DDMMYY", "."),
                                           std::pair("YYMMDD", "/")));
