// What each of the entry windows checks, offers and remembers in its own way.
#include <QLineEdit>
#include <QRadioButton>
#include <ranges>

#include "Desk.h"
#include "logbook/frm_LivesAddEdit.h"
#include "logbook/frm_MaintAddEdit.h"
#include "logbook/frm_WaterAddEdit.h"
#include "platform/UpDown.h"

namespace {

/// A bad text for a box, a part of what OK then tells, and a text that the box takes.
struct Fault
{
    const char *box;
    QString bad, words, good = {};
};

} // namespace

template <class Window, LogTab tab> class Checks : public Desk
{
protected:
    using Action = std::function<void(Window &)>;

    Checks() : Desk(tab) {}
    void add(const Action &action) { give("addentries", 0, action); }
    void change(int row, const Action &action) { give("changeentries", row, action); }
    void expectTold(const QString &words)
    {
        const QString told = keeper.told();
        EXPECT_TRUE(told.startsWith("1|") && told.contains("/48/" + words) && told.count("/48/") == 1)
            << told.toStdString();
    }
    void fill(Window &w, const char *name, const QString &text)
    {
        auto &box = control<QWidget>(w, name);
        if (shown(w, {name}) != text)
            hand::fill(box, text);
    }
    void makeAllWrong(Window &w, const std::vector<Fault> &faults)
    {
        for (const Fault &fault : faults | std::views::reverse)
            fill(w, fault.box, fault.bad);
    }
    /// One fault after the other: OK tells of it, puts the focus there and stores nothing; then it is mended.
    void walk(Window &w, const std::vector<Fault> &faults)
    {
        for (const Fault &fault : faults) {
            SCOPED_TRACE(fault.box);
            fill(w, fault.box, fault.bad);
            mouse::click(w.cmd_OK);
            expectTold(fault.words);
            ASSERT_TRUE(w.isVisible());
            EXPECT_TRUE(control<QWidget>(w, fault.box).hasFocus());
            if (!fault.good.isNull())
                fill(w, fault.box, fault.good);
        }
        EXPECT_EQ(keeper.told(), "0");
    }
};

class Water : public Checks<frm_WaterAddEdit, WaterTab>
{
};

TEST_F(Water, EachBoxHasItsLimitAndItsWordsAndBadTextsAreNeverStored)
{
    execute("UPDATE CONFIG SET user_fieldname2 = 'Silicate & co'");
    startWith("MMDDYY", "/");
    add([&](frm_WaterAddEdit &w) {
        walk(w, {{"txt_ammonia", "999.001", "Ammonia entries must be less than 1000.", "999"},
                 {"txt_ph", "99.001", "Ph entries", "99"},
                 {"txt_sg", "10", "Specific Gravity entries", "9.999"},
                 {"txt_temp", "999.001", "Temperature entries", "999"},
                 {"txt_user2", "999.001", "Silicate & co entries", "999"},
                 {"txt_orp", "", "Orp entries must be a number."},
                 {"txt_orp", "1.2.3", "Orp", "-1"},
                 {"txt_date", "02/29/26", "You must enter a valid date", "02/29/24"},
                 {"txt_time", "13", "You must enter a valid time", "12:30:00 pm"}});
        hand::type(control<QWidget>(w, "txt_orp"), "1000x"); // one bad text, both boxes
        mouse::click(w.txt_Comment);
        EXPECT_EQ(keeper.told().count("Orp entries must be"), 2);
        hand::type(control<QWidget>(w, "txt_orp"), "1");
        hand::type(*w.txt_date, "03/x"); // a key that the mask refuses
        expectTold("You must enter a valad date");
        hand::press(Qt::Key_Escape);
    });
    EXPECT_EQ(keeper.told(), "0");
    EXPECT_EQ(keeper.count("WATERLOG"), 0);
}

TEST_F(Water, ArrowsCarryNoValueBeyondItsLimitAndStandWhereTheRowDoes)
{
    add([&](frm_WaterAddEdit &w) {
        hand::step(w, "Ud_SG", "up");
        control<UpDown>(w, "Ud_Nitrite").setValue(9990);
        hand::step(w, "Ud_Nitrite", "up"); // 999.1, and the box was never entered
        mouse::click(w.cmd_OK);
        expectTold("Nitrite entries must be less than 1000.");
        EXPECT_EQ(keeper.count("WATERLOG"), 0);
        hand::step(w, "Ud_Nitrite", "down");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.count("WATERLOG WHERE nitrite = 999 AND sg = 1.024"), 1);
    execute("UPDATE WATERLOG SET ph = 8.2, oxygen = NULL");
    change(1, [&](frm_WaterAddEdit &w) {
        hand::step(w, "ud_Ph", "up");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.count("WATERLOG WHERE ph = 8.3 AND oxygen = 0"), 1);
}

class Livestock : public Checks<frm_LivesAddEdit, LivestockTab>
{
protected:
    void insert(const char *tank, const char *date, const char *animal)
    {
        execute(QString("INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname, quantity) "
                        "VALUES ('%1', '%2', '09:30:00', '%3', 1)")
                    .arg(tank, date, animal));
    }
};

TEST_F(Livestock, OkTellsTheFirstFaultInTheOrderOfTheChecks)
{
    add([&](frm_LivesAddEdit &w) {
        const std::vector<Fault> faults = {
            {"lst_AnimalList", "", "You must enter an animal name"},
            {"lst_AnimalList", QString(51, 'a'), "Your animal description must", QString(50, 'a')},
            {"txt_DateAdded", "__/__/__", "You must enter a valid date in MM/DD/YY", "04/05/26"},
            {"txt_datelost", "02/30/26", "You must enter a valid date in MM/DD/YY", "05/06/26"},
            {"txt_pricepaid", "abc", "Price Paid must", "1,234.5"},
            {"lst_Status", QString(31, 's'), "Your status description must", QString(30, 's')},
            {"txt_quantity", "32,001", "Your quantity must be less than 32,000."},
            {"txt_quantity", "99999x", "Your quantity must be less than 32,000."},
            {"txt_quantity", "", "Quantity entries must be a number.", "32,000"},
            {"txt_timeadded", "13:00:00 PM", "You must enter a valid time", "12:00:01 AM"}};
        w.txt_DateAdded->setText({}); // by typing it would be caught on leaving
        makeAllWrong(w, faults);
        walk(w, faults);
        EXPECT_EQ(keeper.count("LIVESTOCK"), 0);
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.count("LIVESTOCK WHERE length(animalname) = 50 AND price_paid = 1234.5 AND length(Status) = 30 "
                           "AND quantity = 32000 AND timeadded = '00:00:01' AND dateadded = '2026-04-05'"),
              1);
}

TEST_F(Livestock, AnimalsFollowTheWaterOfTheTankAndTheOptionsSwitchThem)
{
    for (const char *id : {"r1", "Same", "b1", "k1", "p1"}) {
        insert(id, "2026-01-01", (QString("zz ") + id).toLatin1());
        insert(id, "2026-01-02", "Betta"); // a word of the list as well: offered once
    }
    const auto expectList = [&](frm_LivesAddEdit &w, bool sea) {
        const QStringList names = lines(*w.lst_AnimalList->model()).split('|');
        EXPECT_EQ(names.filter("zz ").join(','), sea ? "zz r1,zz Same" : "zz b1");
        EXPECT_EQ(names.count("Anemone - Carpet"), sea);
        EXPECT_EQ(names.count("Betta"), 1);
    };
    for (const auto &[tank, sea] : {std::pair("Reef", true), {"Bowl", false}, {"Marsh", false}}) {
        SCOPED_TRACE(tank);
        hand::clickTank(*logbook, tank);
        add([&, sea = sea](frm_LivesAddEdit &w) {
            expectList(w, sea);
            hand::fill(*w.lst_AnimalList, "my own");
            mouse::click(sea ? w.opt_Fresh : w.opt_Saltwater, QPoint(8, 8));
            expectList(w, !sea);
            EXPECT_EQ(w.lst_AnimalList->currentText(), "my own");
            hand::press(Qt::Key_Escape);
        });
    }
}

TEST_F(Livestock, ASecondAnimalMayComeInThatSecondAndIsWhatTheChangeFindsFirst)
{
    insert("r1", "2026-03-14", "Tang");
    open("Reef");
    add([&](frm_LivesAddEdit &w) {
        hand::fill(*w.lst_AnimalList, "Tang");
        hand::type(*w.txt_timeadded, "09:30:00 am");
        hand::type(*w.txt_pricepaid, "5");
        mouse::click(w.cmd_OK);
        expectTold("This tank already has");
        EXPECT_TRUE(w.txt_timeadded->hasFocus());
        hand::fill(*w.lst_AnimalList, "Crab");
        hand::type(*w.txt_pricepaid, ""); // what the refused try had is not kept
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.count("LIVESTOCK WHERE animalname = 'Crab' AND price_paid IS NULL"), 1);
    EXPECT_EQ(column(1), "Crab Tang");
    change(2, [&](frm_LivesAddEdit &w) { // whichever was selected
        EXPECT_EQ(w.lst_AnimalList->currentText(), "Crab");
        hand::press(Qt::Key_Escape);
    });
}

class Maintenance : public Checks<frm_MaintAddEdit, MaintenanceTab>
{
};

TEST_F(Maintenance, OkTellsTheFirstFaultInTheOrderOfTheChecks)
{
    add([&](frm_MaintAddEdit &w) {
        const std::vector<Fault> faults = {
            {"lst_mainttasklist", "", "You must enter a task"},
            {"lst_mainttasklist", QString(51, 't'), "Your task description must be", QString(50, 't')},
            {"txt_quantity", "9,999.5", "Your quantity must be less than 10,000.", "9,999"},
            {"txt_description", QString(51, 'd'), "Your description must be 50", QString(50, 'd')},
            {"lst_unit", QString(11, 'u'), "Your \"unit of measure\"", QString(10, 'u')}};
        makeAllWrong(w, faults);
        walk(w, faults);
        walk(w, {{"txt_logtime", "13:00:00 pm", "You must enter a valid time", "12:00:00 AM"}});
        EXPECT_EQ(keeper.count("MAINTLOG"), 0);
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.count("MAINTLOG WHERE maintlogdate = '2026-03-14' AND maintlogtime = '00:00:00' AND "
                           "length(maintlogtask) = 50 AND maintlogqty = 9999 AND length(maintlogdesc) = 50 AND "
                           "length(maintlogunit) = 10"),
              1);
}

TEST_F(Maintenance, ChangingLeavesALivestockWindowBehindThatDoesNoHarm)
{
    execute("INSERT INTO MAINTLOG (mainttankname, maintlogdate, maintlogtime) VALUES ('r1', '2026-12-25', '09:30:00')");
    open("Reef");
    change(1, [&](frm_MaintAddEdit &) {
        const auto *left = Forms::current().loaded<frm_LivesAddEdit>();
        EXPECT_TRUE(left && !left->isVisible());
        hand::press(Qt::Key_Escape);
    });
    hand::clickTank(*logbook, "Bowl");
    hand::clickTab(*logbook->tab_logtype, LivestockTab);
    give<frm_LivesAddEdit>("addentries", 0, [&](frm_LivesAddEdit &w) {
        EXPECT_FALSE(lines(*w.lst_AnimalList->model()).contains("Anemone"));
        EXPECT_EQ(w.txt_timeadded->Text(), "09:26:53 am");
        hand::press(Qt::Key_Escape);
    });
    EXPECT_EQ(keeper.told(), "0");
}
