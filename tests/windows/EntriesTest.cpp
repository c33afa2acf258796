// What the entry windows of the three logs have in common, tested by a table of their differences.
#include <ranges>

#include "Desk.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_MaintAddEdit.h"
#include "windows/logbook/frm_WaterAddEdit.h"

using Action = std::function<void(QWidget &)>;

template <class F> void next(const Action &action)
{
    Keeper::inNext<F>([action](F &window) { action(window); });
}

/// A bad text for a box, a part of the message that OK then shows, and a text that the box accepts.
struct Fault
{
    const char *box;
    QString bad, words, good = {};
    bool onLeaving = false; ///< the message comes as soon as the focus leaves the box
};

/// A box, what is typed into it, and the column where it is stored.
struct Box
{
    QString name, typed, column;
    std::optional<QString> left = {}; ///< if set, a change empties the box, and then this is in the column
};

struct Log
{
    LogTab tab;
    void (*inNext)(const Action &);
    const char *file;          ///< the table, and its columns for tank, date and time
    QStringList moment;        ///< the boxes for date and time
    std::vector<Box> boxes;    ///< the other boxes
    const char *taken;         ///< the message if there is such an entry already
    std::vector<Fault> faults; ///< in the order of the checks
};

void PrintTo(const Log &log, std::ostream *out) { *out << log.file; }

const Log logs[] = {
    {WaterTab,
     next<frm_WaterAddEdit>,
     "WATERLOG tankname logdate logtime",
     {"txt_date", "txt_time"},
     {{"txt_nitrate", "3.5", "nitrate"}, // the other measurements have a test of their own
      {"txt_oxygen", "-1.5", "oxygen"},
      {"txt_Comment", "a\n\"b\"'", "Comment", ""}},
     "Oops!/48/This tank already has a water test at that date and time.",
     {{"txt_copper", "1e309", "Copper entries must less than 1000.", "9", true},
      {"txt_date", "02/29/26", "You must enter a valid date", "02/29/24", true},
      {"txt_time", "13", "You must enter a valid time", "12:30:00 pm", true}}},
    {LivestockTab,
     next<frm_LivesAddEdit>,
     "LIVESTOCK tankname dateadded timeadded",
     {"txt_DateAdded", "txt_timeadded"},
     {{"lst_AnimalList", "Nan's \"Tang\"", "animalname"},
      {"txt_quantity", "3", "printf('%d',quantity)"},
      {"lst_where", "Zoo", "where_purch", ""},
      {"txt_pricepaid", "12.5", "price_paid", "12.5"}, // an empty price or date keeps the stored value
      {"txt_pricesold", "7.5", "price_sold", "7.5"},
      {"txt_datelost", "26-05-25", "substr(datelost,3)", "26-05-25"},
      {"lst_Status", "sold", "Status"},
      {"txt_Comment", "shy\nfish", "Comment"}},
     "Oops!/48/This tank already has an entry for that animal at that date and time.",
     {{"lst_AnimalList", "", "You must enter an animal name"},
      {"lst_AnimalList", QString(51, 'a'), "Your animal description must", QString(50, 'a')},
      {"txt_datelost", "02/30/26", "You must enter a valid date in MM/DD/YY", "05/06/26"},
      {"txt_pricepaid", "1e309", "Price Paid must be a number.", "1,234.5"},
      {"txt_pricesold", "-1000000000000", "Price Sold must have at most 12 digits", "999,999,999,999.99"},
      {"lst_Status", QString(31, 's'), "Your status description must", QString(30, 's')},
      {"txt_quantity", "32,001", "Your quantity must be less than 32,000."},
      {"txt_quantity", "", "Quantity entries must be a number.", "32,000"},
      {"txt_timeadded", "13:00:00 PM", "You must enter a valid time", "12:00:01 AM"}}},
    {MaintenanceTab,
     next<frm_MaintAddEdit>,
     "MAINTLOG mainttankname maintlogdate maintlogtime",
     {"txt_logdate", "txt_logtime"},
     {{"lst_mainttasklist", "Feeding", "maintlogtask"},
      {"txt_description", "aged", "maintlogdesc", " "},
      {"txt_quantity", "12.5", "maintlogqty", "0.0"},
      {"lst_unit", "litres", "maintlogunit", ""},
      {"txt_maintlognotes", "a\n\"b\"'", "maintlognote", " "}},
     "Oops/48/That identical combination of Date and Time already exists for this task. Make your new time unique by "
     "changing at least one number.",
     {{"txt_quantity", "-1e309", "Quantity entries must be a number.", "1", true},
      {"lst_mainttasklist", "", "You must enter a task"},
      {"lst_mainttasklist", QString(51, 't'), "Your task description must be", QString(50, 't')},
      {"txt_quantity", "9,999.5", "Your quantity must be less than 10,000.", "9,999"},
      {"txt_description", QString(51, 'd'), "Your description must be 50", QString(50, 'd')},
      {"lst_unit", QString(11, 'u'), "Your \"unit of measure\"", QString(10, 'u')},
      {"txt_logtime", "13:00:00 pm", "You must enter a valid time", "12:00:00 AM", true}}},
};

class Entries : public Desk, public ::testing::WithParamInterface<Log>
{
protected:
    Entries() : Desk(GetParam().tab)
    {
        for (const Box &box : log.boxes) {
            names << box.name;
            typed << box.typed;
            columns << box.column;
        }
    }
    /// Inserts rows at half past nine, with the day of the month in the first column.
    void insert(const char *id, const QStringList &dates)
    {
        for (const QString &date : dates)
            addEntry(log.tab, id, date + " 09:30:00", qPrintable(columns[0]), date.right(2));
        hand::clickTank(*logbook, keeper.g().gTankName);
    }
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
        for (const Box &box : log.boxes)
            hand::type(control<QWidget>(w, box.name), box.typed);
    }
    /// The texts of the boxes, without two zeros at the end of a number.
    QString held(QWidget &w) const { return shown(w, names).replace("00|", "|"); }
    /// All rows, ordered by tank and moment.
    QString moments()
    {
        const QString rows = tankColumn + "||' '||" + dateColumn + "||' '||" + timeColumn;
        return keeper.stored(
            QString("group_concat(m, ', ') AS x FROM (SELECT %1 AS m FROM %2 ORDER BY 1)").arg(rows, table));
    }
    QString values(const QString &date)
    {
        return keeper.stored(QString("%1 AS x FROM %2 WHERE %3 = 'r1' AND %4 = '%5'")
                                 .arg(columns.join("||'|'||"), table, tankColumn, dateColumn, date));
    }
    QString remove(int row, MsgBoxAnswer answer)
    {
        keeper.doors.answers = {answer};
        hand::clickRow(list(), row);
        push("deleteentries");
        return keeper.told();
    }

    const Log &log = GetParam();
    const bool readsAsTyped = log.tab == MaintenanceTab; ///< a change reads the date of the row month first
    const QStringList file = QString(log.file).split(' ');
    const QString table = file[0], tankColumn = file[1], dateColumn = file[2], timeColumn = file[3];
    QStringList names, typed, columns;
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
    QStringList left;
    give("changeentries", 1, [&](QWidget &w) {
        EXPECT_EQ(shown(w, log.moment).toLower(), "26-05-16|09:05:07 pm");
        EXPECT_EQ(held(w), typed.join('|'));
        for (const Box &box : log.boxes) {
            left << box.left.value_or(box.typed);
            if (box.left)
                hand::type(control<QWidget>(w, box.name), "");
        }
        fill(w, "26-05-18", "09:05:07 pm");
        hand::press(Qt::Key_Return);
    });
    EXPECT_EQ(moments(), "Same 2026-05-16 09:30:00, r1 2026-05-17 09:30:00, r1 2026-05-18 21:05:07");
    EXPECT_EQ(values("2026-05-18"), left.join('|'));
    EXPECT_EQ(keeper.told(), "0");
}

TEST_P(Entries, WhatABoxShowsRoundedOrCutIsKeptUntilItIsEdited)
{
    const QString fine[] = {
        "nitrate = 1/3.0 AND ph = 1/3.0 AND sg = 1/3.0 AND temp = 1/3.0 AND Comment = 'a' || x'0d0a' || 'b'",
        "quantity = 2.5 AND price_paid = 1/3.0 AND price_sold = 1e20/3 AND "
        "datelost = '2041-05-06' AND animalname = 'Tang' AND Comment = 'a' || x'0d0a' || 'b'",
        "maintlogqty = 1/3.0 AND maintlogtask = 'Feeding' AND maintlogdesc = 'b' AND "
        "maintlognote = 'a' || x'0d0a' || 'b'"};
    insert("r1", {"2026-12-25"});
    QString values = fine[log.tab];
    const QString unchanged = table + " WHERE " + timeColumn + " = '10:00:00' AND " + values;
    execute(QString("UPDATE %1 SET %2").arg(table, values.replace(" AND ", ", ")));
    give("changeentries", 1, [&](QWidget &w) {
        for (const QString &box : names) // shown in its format, and again while it is edited
            mouse::click(&control<QWidget>(w, box));
        hand::type(control<QWidget>(w, log.moment[1]), "10:00:00 am");
        hand::press(Qt::Key_Return);
    });
    EXPECT_EQ(keeper.count(unchanged), 1);
    EXPECT_EQ(moments(), "r1 2026-12-25 10:00:00");
}

TEST_P(Entries, OkTellsTheFirstFaultInTheOrderOfTheChecksAndStoresNothing)
{
    give("addentries", 0, [&](QWidget &w) {
        for (const Fault &fault : log.faults | std::views::reverse) // at first everything is wrong
            if (!fault.onLeaving)
                hand::type(control<QWidget>(w, fault.box), fault.bad);
        for (const Fault &fault : log.faults) {
            SCOPED_TRACE(fault.box + (' ' + fault.bad.toStdString()));
            if (shown(w, {fault.box}) != fault.bad)
                hand::type(control<QWidget>(w, fault.box), fault.bad);
            hand::click<QPushButton>(w, "cmd_OK");
            const QString told = keeper.told();
            EXPECT_TRUE(told.startsWith("1|") && told.count("!/48/") == 1) << told.toStdString();
            EXPECT_TRUE(told.contains("!/48/" + fault.words)) << told.toStdString();
            ASSERT_TRUE(w.isVisible() && control<QWidget>(w, fault.box).hasFocus());
            if (!fault.good.isNull())
                hand::type(control<QWidget>(w, fault.box), fault.good);
        }
        EXPECT_EQ(moments(), "");
        hand::click<QPushButton>(w, "cmd_OK");
    });
    EXPECT_EQ(moments().count("r1"), 1);
    EXPECT_EQ(keeper.told(), "0");
}

TEST_P(Entries, ASecondOneOfThatMomentIsRefusedAndWhatWasTypedStands)
{
    startWith("YYMMDD", "-");
    insert("Same", {"2026-03-16"}); // the same moment in another tank
    insert("r1", {"2026-03-14", "2026-03-15"});
    execute(QString("UPDATE %1 SET %2 = ?").arg(table, columns[0]), {typed[0]});
    const std::tuple<const char *, int, const char *, const char *> rows[] = {
        {"addentries", 0, "26-03-16", "09:30:00 am"}, {"changeentries", 2, "26-03-14", "09:30:02 am"}};
    for (const auto &[button, row, date, time] : rows)
        give(button, row, [&, date = date, time = time](QWidget &w) {
            fillAll(w);
            fill(w, "26-03-14", "09:30:00 am");
            hand::click<QPushButton>(w, "cmd_OK");
            EXPECT_EQ(keeper.told(), QString("1|") + log.taken);
            EXPECT_EQ(held(w), typed.join('|'));
            fill(w, date, time);
            hand::press(Qt::Key_Return);
        });
    give("changeentries", 2, [](QWidget &) { hand::press(Qt::Key_Return); }); // a row is not a duplicate of itself
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
        push("deleteentries");
        EXPECT_EQ(keeper.told(), "0|Note!/64/You must first select a log entry to delete");
        const QString entry = log.tab == LivestockTab ? "25 - 12/25/26, 09:30:00 AM" : "12/25/26, 09:30:00 am";
        const QString question = "1|Are you sure.../33/Are you sure you want to delete the  " + entry +
                                 " entry for the " + tank + " tank?   (Remember, you CANNOT \"undo\" a delete!)";
        const bool found = log.tab == LivestockTab || tank == u"Same"; // in the other logs by the name
        EXPECT_EQ(remove(1, MsgBoxAnswer::Cancel), question);
        EXPECT_EQ(remove(1, MsgBoxAnswer::OK), question + (found ? "" : "|/0/yo... no match on da key!"));
        EXPECT_EQ(list().Count(), found ? 0 : 1);
    }
}

TEST_P(Entries, DeletingReadsTheRowsDateMonthFirstAsAChangeOfMaintenanceDoes)
{
    startWith("DDMMYY", "/", "Same");
    insert("Same", {"2026-04-05", "2026-04-15", "2026-05-04"});
    // So 05/04/26 is the fourth of May, and 15/04/26 can be read only in the user's date order.
    const int opened[] = {5, 15, 4};
    for (const int i : {0, 1, 2})
        give("changeentries", i + 1, [&](QWidget &w) {
            EXPECT_EQ(shown(w, {names[0]}).toDouble(), opened[readsAsTyped ? 2 - i : i]);
            hand::press(Qt::Key_Escape);
        });
    EXPECT_TRUE(remove(1, MsgBoxAnswer::OK).contains("05/04/26"));
    EXPECT_TRUE(remove(2, MsgBoxAnswer::OK).contains("04/15/26"));
    EXPECT_TRUE(remove(1, MsgBoxAnswer::OK).contains("Choose dates with the month first"))
        << "nothing on the 4th of May";
    EXPECT_EQ(moments(), "Same 2026-04-05 09:30:00");
}

TEST_P(Entries, ARowOpensTheEntryThatItShowsWhateverItsYearAndTheOrderOfTheList)
{
    insert("r1", {"2026-04-07", "2026-04-05", "2035-04-06"});
    const QString none = "1|Note!/64/Nothing was deleted. The date in this row, 04/06/35, is read as April 6, 1935 "
                         "here, and there is no entry of that day at 09:30:00 am.";
    EXPECT_EQ(remove(3, MsgBoxAnswer::OK).toLower(), none.toLower());
    hand::clickHeading(list(), log.tab == WaterTab ? 5 : 2);
    give("changeentries", readsAsTyped ? 3 : 2, [&](QWidget &w) {
        EXPECT_EQ(shown(w, {names[0]}).toDouble(), readsAsTyped ? 7 : 6);
        hand::press(Qt::Key_Escape);
    });
    execute("DELETE FROM " + table);
    EXPECT_TRUE(remove(1, MsgBoxAnswer::OK).contains("This entry is no longer in the log as the list showed it."));
    EXPECT_EQ(list().Count(), 0);
}

INSTANTIATE_TEST_SUITE_P(Logs, Entries, ::testing::ValuesIn(logs));
