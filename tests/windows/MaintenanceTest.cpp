#include <QLineEdit>
#include <QPlainTextEdit>

#include "Desk.h"
#include "logbook/frm_LivesAddEdit.h"
#include "logbook/frm_MaintAddEdit.h"

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

const std::vector<const char *> taskBoxes = {"txt_logdate",  "txt_logtime", "lst_mainttasklist", "txt_description",
                                             "txt_quantity", "lst_unit",    "txt_maintlognotes"};

} // namespace

TEST_F(Maintenance, OkTellsTheFirstFaultInTheOrderOfTheChecks)
{
    add([&](frm_MaintAddEdit &w) {
        EXPECT_EQ(shown(w, taskBoxes), "03/14/26|09:26:53 am|| |0|| ");
        walk(w,
             {{"lst_mainttasklist", "", "Note!: You must enter a task for your entry"},
              {"lst_mainttasklist", QString(51, 't'), "Note!: Your task description must be less than 50 characters."},
              {"lst_mainttasklist", QString(50, 't'), ""},
              {"txt_quantity", "9,999.5", "Note!: Your quantity must be less than 10,000."},
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

TEST_F(Maintenance, ABadTimeIsCaughtOnLeavingAndEmptyTextsAreSavedAsTheyAre)
{
    startWith("DDMMYY", ".");
    add([&](frm_MaintAddEdit &w) {
        hand::fill(*w.lst_mainttasklist, "Feeding");
        hand::type(*w.txt_logdate, "11.24.26"); // month first where it can be
        hand::type(*w.txt_logtime, "13:00:00 pm");
        mouse::click(w.txt_description);
        EXPECT_TRUE(told(1).startsWith("Oops!: You must enter a valid time in"));
        hand::type(*w.txt_logtime, "12:00:00 AM");
        for (QWidget *box : std::initializer_list<QWidget *>{w.txt_quantity, w.txt_description, w.txt_maintlognotes})
            hand::type(*box, "");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(told(0), "");
    EXPECT_EQ(rows("maintlogqty = 0 AND maintlogdesc = ' ' AND maintlognote = ' ' AND maintlogunit = '' AND "
                   "maintlogdate = '2026-11-24' AND maintlogtime = '00:00:00'"),
              1);
}

TEST_F(Maintenance, ASecondEntryInOneSecondIsRefusedAndTheTimeCanBeMended)
{
    insert("r1", "2026-03-14");
    insert("r1", "2026-03-15");
    open("Reef");
    const auto mendTo = [&](const char *time) {
        return [&, time](frm_MaintAddEdit &w) {
            hand::type(*w.txt_logdate, "03/14/26");
            hand::type(*w.txt_logtime, "09:30:00 am");
            hand::fill(*w.lst_mainttasklist, "Feeding"); // whatever the task
            const QString typed = shown(w, taskBoxes);
            mouse::click(w.cmd_OK);
            EXPECT_EQ(told(1), "Oops: That identical combination of Date and Time already exists for this task. Make "
                               "your new time unique by changing at least one number.");
            EXPECT_EQ(shown(w, taskBoxes), typed);
            hand::type(*w.txt_logtime, time);
            mouse::click(w.cmd_OK);
        };
    };
    add(mendTo("09:30:01 am"));
    change(3, mendTo("09:30:02 am"));
    EXPECT_EQ(column(0), "03/14/26 - 09:30:00 am 03/14/26 - 09:30:01 am 03/14/26 - 09:30:02 am");
    EXPECT_EQ(column(1), "Water Change Feeding Feeding");
}

TEST_F(Maintenance, ChangingLeavesALivestockWindowBehindThatDoesNoHarm)
{
    insert("r1", "2026-12-25");
    open("Reef");
    change(1, [&](frm_MaintAddEdit &w) {
        EXPECT_EQ(shown(w, taskBoxes), "12/25/26|09:30:00 am|Water Change|aged|12.5|litres|cold");
        const auto *left = Forms::current().loaded<frm_LivesAddEdit>();
        ASSERT_TRUE(left);
        EXPECT_FALSE(left->isVisible());
        hand::fill(*w.lst_unit, "ml");
        hand::type(*w.txt_quantity, "7");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("mainttankname = 'r1' AND maintlogdate = '2026-12-25' AND maintlogtime = '09:30:00' AND "
                   "maintlogqty = 7 AND maintlogunit = 'ml' AND maintlogdesc = 'aged'"),
              1);
    EXPECT_EQ(rows(), 1);
    hand::clickTank(*logbook, "Bowl");
    hand::clickTab(*logbook->tab_logtype, LivestockTab);
    keeper.inNext<frm_LivesAddEdit>([&](frm_LivesAddEdit &w) {
        EXPECT_EQ(w.windowTitle(), " Livestock Detail for Bowl");
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
        EXPECT_EQ(keeper.told(), "0|failure 3021");
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
        EXPECT_EQ(remove(1, entry, MsgBoxAnswer::OK), tank == u"Reef" ? "|0 : yo... no match on da key!" : "");
        EXPECT_EQ(list().Count(), tank == u"Reef" ? 1 : 0);
    }
    EXPECT_EQ(stored("group_concat(mainttankname) AS x FROM MAINTLOG"), "r1");
}
