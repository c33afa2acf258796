// A year with two tanks, of the sea and of fresh water: animals come, move, are sold and die, work is done each month;
// mistakes are made and mended, and in the middle the program ends and starts again. At the end the screen, the file
// and the paper say the same, and it is what was done. Once in each order of dates.
#include <algorithm>

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>

#include "logbook/frm_LivesAddEdit.h"
#include "logbook/frm_LivesMove.h"
#include "logbook/frm_MaintAddEdit.h"
#include "logbook/frm_OMKLogPrint.h"
#include "logbook/LogTab.h"
#include "platform/MaskedBox.h"
#include "tanks/frm_TankMaint.h"
#include "text/Dates.h"
#include "windows/Hands.h"

struct YearHabit
{
    const char *order, *delimiter, *picture;
};

/// What was done, as the keeper would tell it: the text is the cells of a row after its date and time.
struct Done
{
    QString tank;
    QDateTime when;
    QString text;
};

class Year : public ::testing::TestWithParam<YearHabit>
{
protected:
    Year()
    {
        keeper.addTank("Reef", "r1", "3");
        keeper.addTank("Bowl", "Bowl", "1"); // named as its id: its work can be deleted
        SaveSetting("Date_Order", GetParam().order);
        SaveSetting("Date_Delim", GetParam().delimiter);
    }
    void begin()
    {
        main = &keeper.startProgram();
        logbook = &hand::openLogbook(*main);
    }
    void go(const QString &tank, LogTab tab)
    {
        hand::clickTank(*logbook, tank);
        hand::clickTab(*logbook->tab_logtype, tab);
    }
    template <class F> void give(const char *button, const std::function<void(F &)> &work)
    {
        keeper.inNext<F>(work);
        hand::click<QToolButton>(*logbook, button);
        EXPECT_TRUE(isInFront(*main));
    }
    ListView &list() const { return static_cast<ListView &>(*logbook->tab_logtype->currentWidget()); }
    void select(const QString &name)
    {
        int row = 1;
        while (row < list().Count() && list().Text(row, 1) != name)
            ++row;
        ASSERT_EQ(list().Text(row, 1), name);
        hand::clickRow(list(), row);
    }
    QString show(const QDate &date) const { return Format(date, GetParam().picture); }
    /// The work's date is read as it stands, month first where it can be.
    QDate asTyped(const QDate &date) const
    {
        const bool turned = QLatin1String(GetParam().order) == u"DDMMYY" && date.day() <= 12;
        return turned ? QDate(date.year(), date.day(), date.month()) : date;
    }
    Done &done(std::vector<Done> &log, const QString &name)
    {
        return *std::ranges::find_if(log, [&](const Done &entry) { return entry.text.startsWith(name + '|'); });
    }
    void refused(QPushButton *ok, const QString &words)
    {
        mouse::click(ok);
        EXPECT_EQ(keeper.doors.takeText(), words);
    }

    void buyAnimal(const QString &tank, const QString &name, bool clumsy);
    void doWork(const QString &tank, const QString &task, bool clumsy, bool sameSecond);
    void moveTang(const QString &name, bool now);
    void sellAndMend();
    void lose();
    void liveThrough(int month);

    QStringList told(const std::vector<Done> &log, const QString &tank) const;
    QStringList onScreen(const QString &tank, LogTab tab);
    QStringList inFile(const QString &tank, LogTab tab);
    QStringList onPaper(const QString &tank, LogTab tab);

    Keeper keeper;
    frm_OMKMDIMain *main = nullptr;
    frm_Waterlog *logbook = nullptr;
    std::vector<Done> animals, works;
};

void Year::buyAnimal(const QString &tank, const QString &name, bool clumsy)
{
    go(tank, LivestockTab);
    const QDate day = keeper.doors.clock.date().addDays(clumsy ? 1 : 0);
    const QString badDateLost = "You must enter a valid date in " + QString(GetParam().picture) +
                                " format to add a \"Date Lost\" to the livestock entry to the log.";
    give<frm_LivesAddEdit>("addentries", [&](frm_LivesAddEdit &w) {
        EXPECT_EQ(w.opt_Saltwater->isChecked(), tank == u"Reef");
        if (clumsy) {
            refused(w.cmd_OK,
                    "You must enter an animal name or pick one from the list to add a livestock entry to the log.");
            hand::type(*w.txt_DateAdded, show(day));
            hand::type(*w.txt_quantity, "a few");
            hand::type(*w.txt_datelost, "99");
        }
        hand::fill(*w.lst_AnimalList, name);
        hand::fill(*w.lst_Status, "Active");
        if (clumsy) {
            refused(w.cmd_OK, badDateLost);
            hand::type(*w.txt_datelost, "");
            refused(w.cmd_OK, "Quantity entries must be a number.");
        }
        hand::type(*w.txt_quantity, "3");
        mouse::click(w.cmd_OK);
    });
    animals.push_back({tank, {day, keeper.doors.clock.time()}, name + "|3|Active"});
}

void Year::doWork(const QString &tank, const QString &task, bool clumsy, bool sameSecond)
{
    go(tank, MaintenanceTab);
    QTime time = keeper.doors.clock.time();
    give<frm_MaintAddEdit>("addentries", [&](frm_MaintAddEdit &w) {
        if (clumsy) {
            refused(w.cmd_OK, "You must enter a task for your entry");
            hand::type(*w.txt_quantity, "10000");
        }
        hand::fill(*w.lst_mainttasklist, task);
        if (clumsy)
            refused(w.cmd_OK, "Your quantity must be less than 10,000.");
        hand::type(*w.txt_quantity, "12");
        hand::fill(*w.lst_unit, "litres");
        if (sameSecond) {
            refused(w.cmd_OK, "That identical combination of Date and Time already exists for this task. Make your new "
                              "time unique by changing at least one number.");
            time = time.addSecs(1);
            hand::type(*w.txt_logtime, Format(time, "hh:mm:ss am/pm"));
        }
        mouse::click(w.cmd_OK);
    });
    works.push_back({tank, {asTyped(keeper.doors.clock.date()), time}, task + "|12|litres"});
}

void Year::moveTang(const QString &name, bool now)
{
    go("Reef", LivestockTab);
    select(name);
    give<frm_LivesMove>("moveentries", [&](frm_LivesMove &w) {
        if (now)
            mouse::click(w.chk_ChangeDate, QPoint(8, 8));
        QListWidgetItem *bowl = w.lst_tanklist->item(0);
        mouse::doubleClick(w.lst_tanklist->viewport(), w.lst_tanklist->visualItemRect(bowl).center());
    });
    Done &tang = done(animals, name);
    tang.tank = "Bowl";
    if (now)
        tang.when = keeper.doors.clock;
}

void Year::sellAndMend()
{
    go("Bowl", LivestockTab);
    select("Betta 2");
    give<frm_LivesAddEdit>("changeentries", [&](frm_LivesAddEdit &w) {
        hand::fill(*w.lst_Status, "Sold");
        hand::type(*w.txt_pricesold, "7.5");
        hand::type(*w.txt_datelost, show(keeper.doors.clock.date()));
        hand::type(*w.txt_quantity, "1");
        mouse::click(w.cmd_OK);
    });
    done(animals, "Betta 2").text = "Betta 2|1|Sold";
    go("Reef", MaintenanceTab);
    select("Test 2");
    give<frm_MaintAddEdit>("changeentries", [&](frm_MaintAddEdit &w) {
        hand::fill(*w.lst_unit, "drops");
        mouse::click(w.cmd_OK);
    });
    done(works, "Test 2").text = "Test 2|12|drops";
}

void Year::lose()
{
    const struct
    {
        const char *tank;
        LogTab tab;
        const char *name;
        bool goes; ///< work is found only where the tank is called as its id
    } losses[] = {{"Reef", LivestockTab, "Tang 4", true},
                  {"Bowl", MaintenanceTab, "Clean 6", true},
                  {"Reef", MaintenanceTab, "Clean 6", false}};
    for (const auto &loss : losses) {
        go(loss.tank, loss.tab);
        select(loss.name);
        hand::click<QToolButton>(*logbook, "deleteentries");
        EXPECT_EQ(keeper.doors.takeBoxes().size(), loss.goes ? 1u : 2u) << loss.tank << loss.name;
        if (loss.goes)
            std::erase_if(loss.tab == LivestockTab ? animals : works, [&loss](const Done &entry) {
                return entry.tank == loss.tank && entry.text.startsWith(QString(loss.name) + '|');
            });
    }
}

void Year::liveThrough(int month)
{
    const QString number = QString::number(month);
    keeper.doors.clock = QDateTime(QDate(2026, month, month % 2 ? 5 : 20), QTime(8 + month, month, 7));
    for (const QString tank : {"Reef", "Bowl"}) {
        buyAnimal(tank, (tank == u"Reef" ? "Tang " : "Betta ") + number, month % 4 == 0);
        doWork(tank, "Test " + number, month % 3 == 0, false);
        doWork(tank, "Clean " + number, false, true);
    }
    switch (month) {
    case 6: moveTang("Tang 1", false); break;
    case 7: moveTang("Tang 3", true); break;
    case 8: sellAndMend(); break;
    case 9: lose(); break;
    case 11:
        keeper.inNext<frm_TankMaint>([](frm_TankMaint &) { hand::press(Qt::Key_Escape); });
        hand::press(Qt::Key_T, Qt::ControlModifier);
        EXPECT_TRUE(isInFront(*main));
        break;
    default: break;
    }
}

/// What the three say of a tank, oldest first: "date - time|cells".
QStringList Year::told(const std::vector<Done> &log, const QString &tank) const
{
    std::vector<Done> sorted = log;
    std::ranges::stable_sort(sorted, {}, &Done::when);
    QStringList lines;
    for (const Done &entry : sorted)
        if (entry.tank == tank)
            lines << show(entry.when.date()) + " - " + Format(entry.when.time(), "hh:mm:ss AM/PM") + '|' + entry.text;
    return lines;
}

QStringList Year::onScreen(const QString &tank, LogTab tab)
{
    go(tank, tab);
    QStringList lines;
    for (int row = 1; row <= list().Count(); ++row) {
        QStringList cells = {list().Text(row, 0).toUpper()};
        for (int i = 1; i <= 3; ++i)
            cells << list().Text(row, i);
        lines << cells.join(u'|');
    }
    return lines;
}

QStringList Year::inFile(const QString &tank, LogTab tab)
{
    const char *const sql =
        tab == LivestockTab
            ? "SELECT dateadded AS d, timeadded AS t, printf('%s|%g|%s', animalname, quantity, Status) AS x FROM "
              "LIVESTOCK, TANKLST WHERE tankid = LIVESTOCK.tankname AND TANKLST.tankname = ? ORDER BY d, t"
            : "SELECT maintlogdate AS d, maintlogtime AS t, printf('%s|%g|%s', maintlogtask, maintlogqty, "
              "maintlogunit) "
              "AS x FROM MAINTLOG, TANKLST WHERE tankid = mainttankname AND TANKLST.tankname = ? ORDER BY d, t";
    QStringList lines;
    for (Recordset rows = keeper.g().gDatabase->OpenRecordset(sql, {tank}); !rows.EOF_(); rows.MoveNext())
        lines << show(rows["d"].value().toDate()) + " - " + Format(rows["t"].value().toTime(), "hh:mm:ss AM/PM") + '|' +
                     rows["x"].text();
    return lines;
}

QStringList Year::onPaper(const QString &tank, LogTab tab)
{
    go("Bowl", tab);
    keeper.doors.printers = {PrintDialogAnswer{1, 0, 0, "Laser", {}}};
    give<frm_OMKLogPrint>("printentries", [](frm_OMKLogPrint &w) {
        mouse::click(w.chk_PrintForAllTanks, QPoint(8, 8));
        mouse::click(w.cmd_ok);
    });
    const auto documents = std::exchange(keeper.doors.documents, {});
    EXPECT_EQ(documents.size(), 1u);
    QStringList lines;
    bool ofTank = false;
    for (const PrintedPage &page : documents.at(0).pages) {
        if (page.find("Tankname: ")) // a page without headings goes on with the tank of the last
            ofTank = page.find(tank) != nullptr;
        for (size_t i = 0; ofTank && i < page.texts.size(); ++i) {
            const PrintedText &text = page.texts[i];
            if (text.x > 0 || text.text.mid(8, 3) != u" - ")
                continue;
            lines << page.row(text.y);
            if (tab == MaintenanceTab) // "12  litres  what for" stands below the task
                lines.back() += '|' + page.texts.at(i + 2).text.trimmed().replace("  ", "|");
        }
    }
    return lines;
}

TEST_P(Year, ScreenFileAndPaperSayWhatWasDone)
{
    begin();
    for (int month = 1; month <= 12; ++month) {
        liveThrough(month);
        if (month != 6)
            continue;
        hand::choose(*main, *main->mnu_File, "mnu_Exit");
        keeper.restart();
        begin();
    }
    EXPECT_EQ(animals.size(), 23u);
    EXPECT_EQ(works.size(), 47u);
    for (const QString tank : {"Reef", "Bowl"})
        for (const LogTab tab : {LivestockTab, MaintenanceTab}) {
            SCOPED_TRACE(tank.toStdString() + ", tab " + std::to_string(tab));
            const QStringList expected = told(tab == LivestockTab ? animals : works, tank);
            EXPECT_EQ(onScreen(tank, tab), expected);
            EXPECT_EQ(inFile(tank, tab), expected);
            EXPECT_EQ(onPaper(tank, tab), expected);
        }
    EXPECT_EQ(keeper.count("LIVESTOCK WHERE animalname = 'Betta 2' AND price_sold = 7.5 AND datelost = '2026-08-20'"),
              1);
    EXPECT_EQ(keeper.count("WATERLOG"), 0);
    EXPECT_TRUE(keeper.doors.boxes.empty() && keeper.doors.failures.empty());
}

INSTANTIATE_TEST_SUITE_P(Orders, Year,
                         ::testing::Values(YearHabit{"MMDDYY", "/", "MM/DD/YY"}, YearHabit{"DDMMYY", ".", "DD.MM.YY"},
                                           YearHabit{"YYMMDD", "-", "YY-MM-DD"}));
