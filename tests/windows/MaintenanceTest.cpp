#include <QLineEdit>
#include <QPlainTextEdit>

#include "common/frm_Caltool.h"
#include "Desk.h"
#include "logbook/frm_LivesAddEdit.h"
#include "logbook/frm_MaintAddEdit.h"
#include "platform/UpDown.h"

class Maintenance : public Desk<frm_MaintAddEdit>
{
protected:
    Maintenance() : Desk(MaintenanceTab) {}
    void insert(const char *tank, const char *date, const char *task = "Water Change", const char *time = "09:30:00")
    {
        execute(QString("INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime, maintlogtask, maintlogqty, "
                        "maintlogdesc, maintlogunit, maintlognote) VALUES ('%1', '%2', '%3', '%4', 12.5, 'aged', "
                        "'litres', 'cold')")
                    .arg(tank, date, time, task));
    }
    int rows(const QString &where = "1") { return keeper.count("MAINTLOG WHERE " + where); }
    QString dates() { return stored("group_concat(d) AS x FROM (SELECT maintlogdate AS d FROM MAINTLOG ORDER BY d)"); }
};

namespace {

const char *const noTaskDate = "Oops!: You must enter a valad date to add a maintenence entry to the log.";
const std::vector<const char *> taskBoxes = {"txt_logdate",  "txt_logtime", "lst_mainttasklist", "txt_description",
                                             "txt_quantity", "lst_unit",    "txt_maintlognotes"};

} // namespace

TEST_F(Maintenance, OkTellsTheFirstFaultInTheOrderOfTheChecks)
{
    const QString tooMuch = "Note!: Your quantity must be less than 10,000.";
    add([&](frm_MaintAddEdit &w) {
        EXPECT_EQ(w.windowTitle(), "Add a New Maintenence Activity");
        EXPECT_EQ(shown(w, taskBoxes), "03/14/26|09:26:53 am|| |0|| ");
        walk(w,
             {{"lst_mainttasklist", "", "Note!: You must enter a task for your entry"},
              {"lst_mainttasklist", QString(51, 't'), "Note!: Your task description must be less than 50 characters."},
              {"lst_mainttasklist", QString(50, 't'), ""},
              {"txt_quantity", "10000", tooMuch},
              {"txt_quantity", "9,999.5", tooMuch},
              {"txt_quantity", "9,999", ""},
              {"txt_description", QString(51, 'd'), "Note!: Your description must be 50 characters or less."},
              {"txt_description", QString(50, 'd'), ""},
              {"lst_unit", QString(11, 'u'), "Note!: Your \"unit of measure\" entry must be 10 characters or less."},
              {"lst_unit", QString(10, 'u'), ""},
              {"txt_maintlognotes", "keeper's\n\"own\"", ""}});
        EXPECT_EQ(rows(), 0);
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("mainttankname = 'r1' AND maintlogdate = '2026-03-14' AND maintlogtime = '09:26:53' AND "
                   "length(maintlogtask) = 50 AND maintlogqty = 9999 AND length(maintlogdesc) = 50 AND "
                   "length(maintlogunit) = 10 AND maintlognote = 'keeper''s' || char(10) || '\"own\"'"),
              1);
}

TEST_F(Maintenance, BadTextsAreCaughtOnLeavingAndEmptyOnesAreSavedAsTheyAre)
{
    const char *const noTime =
        "Oops!: You must enter a valid time in \"HH:MM:SS am\" format to add a maintenence entry to the log.";
    const struct
    {
        MaskedBox *frm_MaintAddEdit::*box;
        std::vector<const char *> bad;
        const char *words, *refusedKey, *good;
    } boxes[] = {
        {&frm_MaintAddEdit::txt_logdate, {"", "02/30/26", "25/12/26", "12/2"}, noTaskDate, "12/x", "12/25/26"},
        {&frm_MaintAddEdit::txt_logtime,
         {"", "13:00:00 pm", "00:10:00 am", "12:60:00 am", "12:00:60 am", "12:00:00 xm"},
         noTime,
         "12:x",
         "12:00:00 AM"},
        {&frm_MaintAddEdit::txt_quantity, {"x", "1.2.3", " "}, "Oops!: Quantity entries must be a number.", "", ""},
    };
    add([&](frm_MaintAddEdit &w) {
        hand::fill(*w.lst_mainttasklist, "Feeding");
        for (const auto &row : boxes) {
            expectCaught(w, *(w.*row.box), row.bad, w.txt_description, row.words);
            hand::type(*(w.*row.box), row.refusedKey);
            EXPECT_EQ(told(*row.refusedKey ? 1 : 0), *row.refusedKey ? row.words : "");
            hand::type(*(w.*row.box), row.good);
        }
        hand::type(*w.txt_description, "");
        hand::type(*w.txt_maintlognotes, "");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(told(0), "");
    EXPECT_EQ(rows("maintlogqty = 0 AND maintlogdesc = ' ' AND maintlognote = ' ' AND maintlogunit = '' AND "
                   "maintlogdate = '2026-12-25' AND maintlogtime = '00:00:00'"),
              1);
}

TEST_F(Maintenance, ADateIsReadAsTypedMonthFirstWhereItCanBe)
{
    const struct
    {
        const char *order, *delimiter, *bad;
        std::vector<const char *> typed;
        const char *inFile;
    } orders[] = {
        {"MMDDYY", "/", "25/12/26", {"04/05/26", "12/25/26", "01/01/30"}, "1930-01-01,2026-04-05,2026-12-25"},
        {"DDMMYY", ".", "31.02.26", {"04.05.26", "25.12.26", "11.24.26"}, "2026-04-05,2026-11-24,2026-12-25"},
        {"YYMMDD", "-", "26-13-01", {"26-04-05", "10-11-12", "26-12-25"}, "2012-10-11,2026-04-05,2026-12-25"},
    };
    for (const auto &row : orders) {
        startWith(row.order, row.delimiter);
        for (const char *typed : row.typed)
            add([&](frm_MaintAddEdit &w) {
                keeper.inNext<frm_Caltool>([](frm_Caltool &c) {
                    EXPECT_EQ(c.lblReturnDate->text(), "03/14/2026");
                    hand::press(Qt::Key_Escape);
                });
                mouse::click(w.cmd_Caldate);
                hand::fill(*w.lst_mainttasklist, "Feeding");
                hand::type(*w.txt_logdate, row.bad);
                mouse::click(w.cmd_OK);
                EXPECT_EQ(told(1), noTaskDate);
                hand::type(*w.txt_logdate, typed);
                mouse::click(w.cmd_OK);
            });
        EXPECT_EQ(dates(), row.inFile);
        execute("DELETE FROM MAINTLOG");
    }
}

TEST_F(Maintenance, ASecondEntryInOneSecondIsRefusedAndTheTimeCanBeMended)
{
    insert("r1", "2026-03-14");
    insert("b1", "2026-03-15"); // another tank's second
    insert("r1", "2026-03-15");
    open("Reef");
    const QString twice =
        "Oops: That identical combination of Date and Time already exists for this task. Make your new time unique "
        "by changing at least one number.";
    const auto collide = [&](frm_MaintAddEdit &w) {
        hand::type(*w.txt_logdate, "03/14/26");
        hand::type(*w.txt_logtime, "09:30:00 am");
        hand::fill(*w.lst_mainttasklist, "Feeding"); // whatever the task
        const QString typed = shown(w, taskBoxes);
        mouse::click(w.cmd_OK);
        EXPECT_EQ(told(1), twice);
        EXPECT_EQ(shown(w, taskBoxes), typed);
        EXPECT_TRUE(w.isVisible());
    };
    for (const char *mended : {"", "09:30:01 am", "", "09:30:02 am"}) { // given up, mended; the second two by a change
        const auto mend = [&](frm_MaintAddEdit &w) {
            collide(w);
            if (!*mended)
                return hand::press(Qt::Key_Escape);
            hand::type(*w.txt_logtime, mended);
            mouse::click(w.cmd_OK);
        };
        list().Count() < 3 ? add(mend) : change(3, mend);
    }
    EXPECT_EQ(column(0), "03/14/26 - 09:30:00 am 03/14/26 - 09:30:01 am 03/14/26 - 09:30:02 am");
    EXPECT_EQ(column(1), "Water Change Feeding Feeding");
}

TEST_F(Maintenance, AnotherFailureIsToldByItsNumberAndARefusedTryLeavesNothing)
{
    insert("r1", "2026-03-14");
    open("Reef");
    for (const char *operation : {"INSERT", "UPDATE"}) {
        execute(QString("CREATE TRIGGER wet BEFORE ") + operation +
                " ON MAINTLOG BEGIN SELECT RAISE(ABORT, 'wet'); END");
        const auto fail = [&](frm_MaintAddEdit &w) {
            hand::fill(*w.lst_mainttasklist, "Feeding");
            mouse::click(w.cmd_OK);
            EXPECT_EQ(told(1), "Oops: ERROR 3421 occurred.");
            EXPECT_TRUE(w.isVisible());
            execute("DROP TRIGGER wet");
            hand::fill(*w.lst_mainttasklist, "");
            mouse::click(w.cmd_OK);
            EXPECT_EQ(told(1), "Note!: You must enter a task for your entry");
            hand::press(Qt::Key_Escape);
        };
        QLatin1String(operation) == u"INSERT" ? add(fail) : change(1, fail);
        EXPECT_EQ(rows(), 1);
        EXPECT_EQ(column(1), "Water Change");
    }
    EXPECT_TRUE(keeper.doors.failures.empty());
}

TEST_F(Maintenance, TheUpDownStepsByOneAndStopsAt999)
{
    add([&](frm_MaintAddEdit &w) {
        const auto step = [&](const char *arrow) {
            hand::click<QToolButton>(*w.ud_quantity, arrow);
            return w.txt_quantity->Text();
        };
        hand::type(*w.txt_quantity, "x"); // no check on the way to it
        EXPECT_EQ(step("down"), "x");
        EXPECT_EQ(step("up"), "1");
        EXPECT_EQ(step("up"), "2");
        w.ud_quantity->setValue(998);
        EXPECT_EQ(step("up"), "999");
        hand::type(*w.txt_quantity, "9999");
        EXPECT_EQ(step("up"), "9999");
        EXPECT_EQ(step("down"), "998");
        hand::press(Qt::Key_Escape);
    });
    EXPECT_EQ(told(0), "");
}

TEST_F(Maintenance, TasksTypedOnceAreOfferedFromThenOnInEveryTank)
{
    add([](frm_MaintAddEdit &w) {
        hand::fill(*w.lst_mainttasklist, "feeding, by hand");
        mouse::click(w.cmd_OK);
    });
    insert("Same", "2026-03-15", "Water Change"); // of the word list: stands there once
    hand::clickTank(*logbook, "Pond");
    add([&](frm_MaintAddEdit &w) {
        EXPECT_EQ(offered(*w.lst_mainttasklist),
                  "Additives Added|Equipment Maintenance|feeding, by hand|Filter Change|Filter Clean|Medication Added|"
                  "Pre-Filter Clean|Skimmer Cleaned|Special Feeding|Substrate Vacumed|Water Change|Water Test|"
                  "Water Top - off");
        EXPECT_EQ(offered(*w.lst_unit), "c.c.|drops|gallons|litres|ml|oz.|percent|ppm");
        EXPECT_EQ(w.lst_mainttasklist->currentText() + w.lst_unit->currentText(), "");
        mouse::click(w.lst_unit);
        for (int i = 0; i < 4; ++i)
            hand::press(Qt::Key_Down);
        mouse::click(w.lst_mainttasklist);
        for (int i = 0; i < 3; ++i)
            hand::press(Qt::Key_Down);
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("mainttankname = 'p1' AND maintlogtask = 'feeding, by hand' AND maintlogunit = 'litres'"), 1);
}

TEST_F(Maintenance, ChangingLeavesALivestockWindowBehindThatDoesNoHarm)
{
    insert("r1", "2026-12-25");
    execute("INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname) VALUES "
            "('b1', '2026-01-01', '09:30:00', 'zz of the bowl')");
    SaveSetting("UseFile_Salt", "TRUE");
    keeper.restart();
    open("Reef");
    hand::clickTab(*logbook->tab_logtype, LivestockTab); // takes the water of the tank in hand
    hand::clickTab(*logbook->tab_logtype, MaintenanceTab);
    change(1, [&](frm_MaintAddEdit &w) {
        EXPECT_EQ(w.windowTitle(), " Maintenence Log for Reef");
        EXPECT_EQ(shown(w, taskBoxes), "12/25/26|09:30:00 am|Water Change|aged|12.5|litres|cold");
        EXPECT_TRUE(told(0).startsWith("Names File Not Found!: "));
        const auto *left = Forms::current().loaded<frm_LivesAddEdit>();
        ASSERT_TRUE(left);
        EXPECT_FALSE(left->isVisible());
        EXPECT_EQ(left->txt_timeadded->Text(), "09:30:00 am");
        hand::fill(*w.lst_unit, "ml");
        hand::type(*w.txt_quantity, "7");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(
        rows("mainttankname = 'r1' AND maintlogdate = '2026-12-25' AND maintlogtime = '09:30:00' AND maintlogqty = "
             "7 AND maintlogunit = 'ml' AND maintlogdesc = 'aged' AND maintlogtask = 'Water Change'"),
        1);
    EXPECT_EQ(rows(), 1);
    hand::clickTank(*logbook, "Bowl");
    hand::clickTab(*logbook->tab_logtype, LivestockTab);
    keeper.inNext<frm_LivesAddEdit>([&](frm_LivesAddEdit &w) {
        EXPECT_EQ(w.windowTitle(), " Livestock Detail for Bowl");
        EXPECT_TRUE(offered(*w.lst_AnimalList).contains("|zz of the bowl"));
        EXPECT_FALSE(offered(*w.lst_AnimalList).contains("Anemone"));
        EXPECT_EQ(w.txt_timeadded->Text(), "09:26:53 am");
        hand::press(Qt::Key_Escape);
    });
    hand::click<QToolButton>(*logbook, "addentries");
    EXPECT_EQ(told(0), "");
}

TEST_F(Maintenance, ChangingAndDeletingReadTheRowsDateMonthFirst)
{
    for (const char *date : {"2026-04-05", "2026-04-15", "2026-05-04", "2026-06-07"})
        insert("Same", date, date);
    startWith("DDMMYY", ".", "Same");
    const std::pair<int, const char *> opened[] = {{1, "2026-05-04"}, {2, "2026-04-15"}, {3, "2026-04-05"}};
    for (const auto &[row, task] : opened) // 05.04.26 is the fourth of May, 15.04.26 cannot be read so
        change(row, [&, task = task](frm_MaintAddEdit &w) {
            EXPECT_EQ(w.lst_mainttasklist->currentText(), task);
            hand::press(Qt::Key_Escape);
        });
    hand::clickRow(list(), 4); // there is none on the sixth of July
    for (const char *button : {"changeentries", "deleteentries"}) {
        push(button);
        ASSERT_EQ(keeper.doors.failures.size(), 1u);
        EXPECT_EQ(std::exchange(keeper.doors.failures, {})[0].number(), Failure::NoCurrentRecord);
    }
    EXPECT_EQ(remove(1, "05/04/26, 09:30:00 am entry for the Same", MsgBoxAnswer::OK), "");
    EXPECT_EQ(dates(), "2026-04-05,2026-04-15,2026-06-07");
}

TEST_F(Maintenance, DeletingFindsARowOnlyWhereTheTankIsCalledAsItsId)
{
    for (const char *tank : {"r1", "Same"})
        insert(tank, "2026-12-25");
    for (const QString tank : {"Reef", "Same"}) {
        open(tank);
        for (const char *button : {"changeentries", "deleteentries"}) // so worded for a change, too
            expectNote(button, "You must first select a log entry to delete");
        const QString entry = "12/25/26, 09:30:00 am entry for the " + tank;
        EXPECT_EQ(remove(1, entry, MsgBoxAnswer::Cancel), "");
        EXPECT_EQ(list().Count(), 1);
        EXPECT_EQ(remove(1, entry, MsgBoxAnswer::OK), tank == u"Reef" ? "|0 : yo... no match on da key!" : "");
        EXPECT_EQ(list().Count(), tank == u"Reef" ? 1 : 0);
    }
    EXPECT_EQ(stored("group_concat(mainttankname) AS x FROM MAINTLOG"), "r1");
}
