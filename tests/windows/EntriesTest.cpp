// The entry windows of the three logs: what holds for each of them, by a table of what differs.
#include "Desk.h"
#include "logbook/frm_LivesAddEdit.h"
#include "logbook/frm_MaintAddEdit.h"
#include "logbook/frm_WaterAddEdit.h"

using Action = std::function<void(QWidget &)>;

template <class F> void next(const Action &action)
{
    Keeper::inNext<F>([action](F &window) { action(window); });
}

struct Log
{
    LogTab tab;
    void (*inNext)(const Action &);
    const char *table, *tank, *date, *time; ///< in the file
    QStringList moment;                     ///< the boxes of date and time
    const char *boxes;                      ///< the others, each with what is typed into it
    const char *columns;                    ///< where that comes to stand
    const char *cleared, *left;             ///< boxes that a change clears, and what then stands in the columns
    const char *taken;                      ///< the refusal of a second entry
    const char *toChange;                   ///< what a change without a selected row is told
    bool asTyped, byName; ///< a change reads the row's date month first; a deletion names the tank by its name
};

void PrintTo(const Log &log, std::ostream *out) { *out << log.table; }

const Log logs[] = {
    {WaterTab,
     next<frm_WaterAddEdit>,
     "WATERLOG",
     "tankname",
     "logdate",
     "logtime",
     {"txt_date", "txt_time"},
     "txt_ammonia 0.125|txt_nitrite 2.5|txt_nitrate 3.5|txt_ph 4.5|txt_sg 1.025|txt_temp 15.5|txt_oxygen -1.5|"
     "txt_dkh 17.5|txt_calcium 415.5|txt_copper 19.5|txt_orp 333.5|txt_user1 21.5|txt_user2 22.5|txt_Comment a\n\"b\"'",
     "Ammonia nitrite nitrate ph sg temp oxygen dkh calcium copper orp custom1 custom2 Comment",
     "txt_Comment",
     "0.125|2.5|3.5|4.5|1.025|15.5|-1.5|17.5|415.5|19.5|333.5|21.5|22.5|",
     "Oops!/48/This tank already has a water test at that date and time.",
     "delete",
     false,
     true},
    {LivestockTab,
     next<frm_LivesAddEdit>,
     "LIVESTOCK",
     "tankname",
     "dateadded",
     "timeadded",
     {"txt_DateAdded", "txt_timeadded"},
     "lst_AnimalList Nan's \"Tang\"|txt_quantity 3|lst_where Zoo|txt_pricepaid 12.5|txt_pricesold 7.5|"
     "txt_datelost 26-05-25|lst_Status Sold|txt_Comment shy\nfish",
     "animalname printf('%d',quantity) where_purch price_paid price_sold substr(datelost,3) Status Comment",
     "lst_where txt_pricepaid txt_pricesold txt_datelost", // an empty price or date leaves what was there
     "Nan's \"Tang\"|3||12.5|7.5|26-05-25|Sold|shy\nfish",
     "Oops!/48/This tank already has an entry for that animal at that date and time.",
     "change.",
     false,
     false},
    {MaintenanceTab,
     next<frm_MaintAddEdit>,
     "MAINTLOG",
     "mainttankname",
     "maintlogdate",
     "maintlogtime",
     {"txt_logdate", "txt_logtime"},
     "lst_mainttasklist Feeding|txt_description aged|txt_quantity 12.5|lst_unit litres|txt_maintlognotes a\n\"b\"'",
     "maintlogtask maintlogdesc maintlogqty maintlogunit maintlognote",
     "txt_description txt_quantity lst_unit txt_maintlognotes",
     "Feeding| |0.0|| ",
     "Oops/48/That identical combination of Date and Time already exists for this task. Make your new time unique by "
     "changing at least one number.",
     "delete",
     true,
     true},
};

class Entries : public Desk, public ::testing::WithParamInterface<Log>
{
protected:
    Entries() : Desk(GetParam().tab)
    {
        for (const QString &box : QString(log.boxes).split('|')) {
            names.push_back(box.section(' ', 0, 0));
            typed << box.section(' ', 1);
        }
    }
    /// Rows at half past nine.
    void insert(const char *tank, std::initializer_list<const char *> dates)
    {
        const QString columns = QStringList{log.tank, log.date, log.time, firstColumn()}.join(',');
        for (const char *date : dates)
            execute(
                QString("INSERT INTO %1 (%2) VALUES ('%3', '%4', '09:30:00', 1)").arg(log.table, columns, tank, date));
        hand::clickTank(*logbook, keeper.g().gTankName);
    }
    QString firstColumn() const { return QString(log.columns).section(' ', 0, 0); }
    void give(const char *button, int row, const Action &action)
    {
        log.inNext(action);
        if (row > 0)
            hand::clickRow(list(), row);
        push(button);
        EXPECT_TRUE(isInFront(*main));
    }
    void fill(QWidget &w, const QString &date, const QString &time) const
    {
        hand::type(control<QWidget>(w, log.moment[0]), date);
        hand::type(control<QWidget>(w, log.moment[1]), time);
    }
    void fillAll(QWidget &w) const
    {
        for (int i = 0; i < typed.size(); ++i)
            hand::fill(control<QWidget>(w, names[i]), typed[i]);
    }
    /// What the boxes show, of three places those that are not 0.
    QString held(QWidget &w) const { return shown(w, names).replace("00|", "|"); }
    /// All rows by tank and moment.
    QString moments()
    {
        return stored(QString("group_concat(m, ', ') AS x FROM (SELECT %1 || ' ' || %2 || ' ' || %3 AS m FROM %4 "
                              "ORDER BY 1)")
                          .arg(log.tank, log.date, log.time, log.table));
    }
    QString values(const char *date)
    {
        return stored(QString(log.columns).replace(' ', "||'|'||") + " AS x FROM " + log.table + " WHERE " + log.date +
                      " = '" + date + "' AND " + log.tank + " = 'r1'");
    }
    QString remove(int row, MsgBoxAnswer answer)
    {
        keeper.doors.answers = {answer};
        hand::clickRow(list(), row);
        push("deleteentries");
        return keeper.told();
    }

    const Log &log = GetParam();
    QStringList names, typed;
};

TEST_P(Entries, ValuesLandInTheirColumnsAndAChangeRewritesItsRowAlone)
{
    startWith("YYMMDD", "-");
    insert("r1", {"2026-05-17"});
    insert("Same", {"2026-05-16"});
    give("addentries", 0, [&](QWidget &w) {
        fill(w, "26-05-16", "09:05:07 pm");
        fillAll(w);
        hand::click<QPushButton>(w, "cmd_OK");
    });
    EXPECT_EQ(moments(), "Same 2026-05-16 09:30:00, r1 2026-05-16 21:05:07, r1 2026-05-17 09:30:00");
    EXPECT_EQ(values("2026-05-16"), typed.join('|'));
    give("changeentries", 1, [&](QWidget &w) {
        EXPECT_EQ(shown(w, log.moment).toLower(), "26-05-16|09:05:07 pm");
        EXPECT_EQ(held(w), typed.join('|'));
        for (const QString &box : QString(log.cleared).split(' '))
            hand::fill(control<QWidget>(w, box), "");
        fill(w, "26-05-18", "09:05:07 pm");
        hand::press(Qt::Key_Return);
    });
    EXPECT_EQ(moments(), "Same 2026-05-16 09:30:00, r1 2026-05-17 09:30:00, r1 2026-05-18 21:05:07");
    EXPECT_EQ(values("2026-05-18"), log.left);
    EXPECT_EQ(keeper.told(), "0");
}

TEST_P(Entries, ASecondOneOfThatMomentIsRefusedAndWhatWasTypedStands)
{
    startWith("YYMMDD", "-");
    insert("Same", {"2026-03-16"}); // another tank's moment
    const auto mendTo = [&](const char *date, const char *time) {
        return [=, this](QWidget &w) {
            fillAll(w);
            fill(w, "26-03-14", "09:30:00 am");
            hand::click<QPushButton>(w, "cmd_OK");
            EXPECT_EQ(keeper.told(), QString("1|") + log.taken);
            EXPECT_EQ(held(w), typed.join('|'));
            fill(w, date, time);
            hand::press(Qt::Key_Return);
        };
    };
    insert("r1", {"2026-03-14", "2026-03-15"});
    execute(QString("UPDATE %1 SET %2 = ?").arg(log.table, firstColumn()), {typed[0]});
    give("addentries", 0, mendTo("26-03-16", "09:30:00 am"));
    give("changeentries", 2, mendTo("26-03-14", "09:30:02 am"));
    give("changeentries", 2, [](QWidget &) { hand::press(Qt::Key_Return); }); // a row is no duplicate of itself
    EXPECT_EQ(moments(), "Same 2026-03-16 09:30:00, r1 2026-03-14 09:30:00, r1 2026-03-14 09:30:02, "
                         "r1 2026-03-16 09:30:00");
    EXPECT_EQ(keeper.told(), "0");
}

TEST_P(Entries, DeletingAsksAndFindsARowByTheNameOrTheIdOfItsTank)
{
    insert("r1", {"2026-12-25"});
    insert("Same", {"2026-12-25"});
    for (const QString tank : {"Reef", "Same"}) {
        hand::clickTank(*logbook, tank);
        for (const auto &[button, toDo] : {std::pair("changeentries", log.toChange), {"deleteentries", "delete"}}) {
            push(button);
            EXPECT_EQ(keeper.told(), QString("0|Note!/64/You must first select a log entry to ") + toDo);
        }
        const QString entry = log.tab == LivestockTab ? "1 - 12/25/26, 09:30:00 AM" : "12/25/26, 09:30:00 am";
        const QString question = "1|Are you sure.../33/Are you sure you want to delete the  " + entry +
                                 " entry for the " + tank + " tank?   (Remember, you CANNOT \"undo\" a delete!)";
        const bool found = !log.byName || tank == u"Same";
        EXPECT_EQ(remove(1, MsgBoxAnswer::Cancel), question);
        EXPECT_EQ(list().Count(), 1);
        EXPECT_EQ(remove(1, MsgBoxAnswer::OK), question + (found ? "" : "|/0/yo... no match on da key!"));
        EXPECT_EQ(list().Count(), found ? 0 : 1);
    }
    EXPECT_EQ(moments(), log.byName ? "r1 2026-12-25 09:30:00" : "");
}

TEST_P(Entries, DeletingReadsTheRowsDateMonthFirstAsAChangeOfMaintenanceDoes)
{
    startWith("DDMMYY", "/", "Same");
    insert("Same", {"2026-04-05", "2026-04-15", "2026-05-04", "2026-06-07"});
    // 05/04/26 is so the fourth of May, and 15/04/26 can be read in the user's order only.
    const QString opened[] = {"05/04/26", "15/04/26", "04/05/26"};
    for (int row = 1; row <= 3; ++row)
        give("changeentries", row, [&](QWidget &w) {
            EXPECT_EQ(control<MaskedBox>(w, log.moment[0]).Text(), opened[log.asTyped ? 3 - row : row - 1]);
            hand::press(Qt::Key_Escape);
        });
    EXPECT_TRUE(remove(1, MsgBoxAnswer::OK).contains("05/04/26"));
    EXPECT_TRUE(remove(2, MsgBoxAnswer::OK).contains("04/15/26"));
    EXPECT_EQ(remove(2, MsgBoxAnswer::OK), "0|failure 3021"); // there is none of the sixth of July
    EXPECT_EQ(moments(), "Same 2026-04-05 09:30:00, Same 2026-06-07 09:30:00");
}

INSTANTIATE_TEST_SUITE_P(Logs, Entries, ::testing::ValuesIn(logs));
