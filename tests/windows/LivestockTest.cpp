#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "Desk.h"
#include "logbook/frm_LivesAddEdit.h"
#include "tanks/frm_TankAddNew.h"
#include "tanks/frm_TankMaint.h"

class Livestock : public Desk<frm_LivesAddEdit>
{
protected:
    Livestock() : Desk(LivestockTab) {}
    void insert(const char *tank, const char *date, const char *animal, const QString &more = "quantity = 1")
    {
        keeper.g().gDatabase->Execute("INSERT INTO LIVESTOCK (tankname, dateadded, timeadded, animalname) "
                                      "VALUES (?, ?, '09:30:00', ?)",
                                      {QString(tank), QString(date), QString(animal)});
        execute("UPDATE LIVESTOCK SET " + more + " WHERE rowid = last_insert_rowid()");
    }
    int rows(const QString &where = "1") { return keeper.count("LIVESTOCK WHERE " + where); }
};

namespace {

const std::vector<const char *> animalBoxes = {"lst_AnimalList", "txt_DateAdded", "txt_timeadded", "txt_quantity",
                                               "lst_where",      "txt_pricepaid", "txt_pricesold", "txt_datelost",
                                               "lst_Status",     "txt_Comment"};

bool offers(const frm_LivesAddEdit &w, const QString &animal)
{
    return offered(*w.lst_AnimalList).split('|').count(animal) == 1;
}

} // namespace

TEST_F(Livestock, OkTellsTheFirstFaultInTheOrderOfTheChecks)
{
    const QString badLost = "Oops!: You must enter a valid date in MM/DD/YY format to add a \"Date Lost\" to the "
                            "livestock entry to the log.";
    const QString tooMany = "Note!: Your quantity must be less than 32,000. (Besides, what size tank do you hold "
                            "32,000 fish in?)";
    const QString noAmount = "Oops!: Quantity entries must be a number.";
    const QString noName = "Oops!: You must enter an animal name or pick one from the list to add a livestock entry to "
                           "the log.";
    add([&](frm_LivesAddEdit &w) {
        EXPECT_EQ(shown(w, animalBoxes), "|03/14/26|09:26:53 am|1||||__/__/__|| ");
        w.txt_DateAdded->setText({}); // by typing it would be caught on leaving
        walk(w,
             {{"lst_AnimalList", "", noName},
              {"lst_AnimalList", QString(51, 'a'), "Note!: Your animal description must be less than 50 characters."},
              {"lst_AnimalList", QString(50, 'a'), ""},
              {"txt_DateAdded", "  /  /  ", badLost},
              {"txt_DateAdded", "04/05/26", ""},
              {"txt_datelost", "02/30/26", badLost},
              {"txt_datelost", "05/06/26", ""},
              {"txt_pricepaid", "abc", "Oops!: Price Paid must be a number."},
              {"txt_pricepaid", "1,234.5", ""},
              {"lst_Status", QString(31, 's'), "Note!: Your status description must be less than 30 characters."},
              {"lst_Status", QString(30, 's'), ""},
              {"txt_quantity", "32,001", tooMany},
              {"txt_quantity", "99999x", tooMany},
              {"txt_quantity", "", noAmount},
              {"txt_quantity", "32,000", ""},
              {"txt_timeadded", "13:00:00 PM",
               "Oops!: You must enter a valid time in \"HH:MM:SS am\" format to add a livestock entry to the log."},
              {"txt_timeadded", "12:00:01 AM", ""}});
        EXPECT_EQ(rows(), 0);
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("length(animalname) = 50 AND dateadded = '2026-04-05' AND datelost = "
                   "'2026-05-06' AND price_paid = 1234.5 AND length(Status) = 30 AND "
                   "quantity = 32000 AND timeadded = '00:00:01' AND Comment = ' ' AND tankname = 'r1'"),
              1);
}

TEST_F(Livestock, ValuesLandInTheirColumnsAndClearedOnesStayAsTheyWere)
{
    const QString all =
        "tankname = 'r1' AND timeadded = '21:05:07' AND animalname = 'Nan''s \"Tang\"' AND price_paid = "
        "12.5 AND price_sold = 7 AND datelost = '2026-05-25' AND Status = 'Sold' AND where_purch = 'Zoo' "
        "AND Comment = 'shy' || char(10) || 'fish' AND ";
    startWith("DDMMYY", ".");
    add([&](frm_LivesAddEdit &w) {
        hand::type(*w.txt_DateAdded, "31.02.26");
        mouse::click(w.txt_quantity);
        EXPECT_EQ(told(1), "Oops!: You must enter a valid date to add a livestock entry to the log.");
        hand::type(*w.txt_DateAdded, "05.04.26");
        const char *const typed[] = {"Nan's \"Tang\"", "05.04.26", "09:05:07 pm", "3",    "Zoo",
                                     "12.5",           "7",        "25.05.26",    "Sold", "shy\nfish"};
        for (size_t i = 0; i < animalBoxes.size(); ++i)
            hand::fill(control<QWidget>(w, animalBoxes[i]), typed[i]);
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows(all + "dateadded = '2026-04-05' AND quantity = 3"), 1);
    change(1, [&](frm_LivesAddEdit &w) {
        EXPECT_EQ(shown(w, animalBoxes), "Nan's \"Tang\"|05.04.26|09:05:07 PM|3|Zoo|12.5|7|25.05.26|Sold|shy\nfish");
        for (const char *box : {"txt_pricepaid", "txt_pricesold", "txt_datelost"})
            hand::type(control<QWidget>(w, box), "");
        hand::type(*w.txt_DateAdded, "06.04.26");
        hand::type(*w.txt_quantity, "4");
        hand::press(Qt::Key_Return);
    });
    EXPECT_EQ(rows(all + "dateadded = '2026-04-06' AND quantity = 4"), 1);
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(told(0), "");
}

TEST_F(Livestock, AnimalsFollowTheWaterOfTheTankAndTheOptionsSwitchThem)
{
    const char *const tanks[] = {"r1", "Same", "b1", "k1", "p1"};
    for (const char *id : tanks) {
        insert(id, "2026-01-01", (QString("zz ") + id).toLatin1());
        insert(id, "2026-01-02", "Betta"); // a word of the list as well: offered once
    }
    const auto expectList = [&](frm_LivesAddEdit &w, bool sea) {
        EXPECT_EQ(w.opt_Saltwater->isChecked(), sea);
        for (const char *animal : {"Anemone - Carpet", "zz r1", "zz Same"})
            EXPECT_EQ(offers(w, animal), sea) << animal;
        for (const char *animal : {"Guppy", "zz b1"})
            EXPECT_EQ(offers(w, animal), !sea) << animal;
        EXPECT_FALSE(offers(w, "zz k1") || offers(w, "zz p1") || offers(w, ""));
        EXPECT_TRUE(offers(w, "Betta"));
        EXPECT_TRUE(std::ranges::is_sorted(offered(*w.lst_AnimalList).toCaseFolded().split('|')));
    };
    for (const auto &[tank, sea] : {std::pair("Reef", true), {"Bowl", false}, {"Marsh", false}}) {
        SCOPED_TRACE(tank);
        hand::clickTank(*logbook, tank);
        add([&, sea = sea](frm_LivesAddEdit &w) {
            expectList(w, sea);
            hand::fill(*w.lst_AnimalList, "my own");
            const QString typed = shown(w, animalBoxes);
            mouse::click(sea ? w.opt_Fresh : w.opt_Saltwater, QPoint(8, 8));
            expectList(w, !sea);
            EXPECT_EQ(shown(w, animalBoxes), typed);
            hand::press(Qt::Key_Escape);
        });
    }
}

TEST_F(Livestock, ListsComeFromTheNameFilesWhereTheOptionsSaySoAndFromTheDatabaseWhereThereIsNone)
{
    SaveSetting("UseFile_Salt", "TRUE");
    startWith("MMDDYY", "/");
    for (const bool there : {false, true}) {
        for (const char *name : {"NAMESSW.TXT", "NAMESFW.TXT"}) { // the other one is looked for, too
            QFile file(name);
            ASSERT_TRUE(!there || file.open(QIODevice::WriteOnly));
            if (there)
                file.write(QByteArray("Yellow Tang").leftJustified(49) + "Latin name\r\n");
        }
        add([&](frm_LivesAddEdit &w) {
            EXPECT_EQ(told(0).left(60), there ? "" : "Names File Not Found!: The file containing the saltwater nam");
            EXPECT_EQ(offered(*w.lst_AnimalList).left(20), there ? "Tang - Yellow " : "Anemone - Bubble Tip");
            hand::press(Qt::Key_Escape);
        });
    }
}

TEST_F(Livestock, ASecondAnimalOfThatNameInOneSecondIsRefusedInPlainWords)
{
    insert("r1", "2026-03-14", "Tang");
    insert("b1", "2026-03-14", "Crab");
    open("Reef");
    add([&](frm_LivesAddEdit &w) {
        for (const auto &[box, text] : {std::pair("lst_AnimalList", "Tang"), std::pair("txt_timeadded", "09:30:00 am"),
                                        std::pair("txt_pricepaid", "5"), std::pair("txt_Comment", "second")})
            hand::fill(control<QWidget>(w, box), text);
        const QString typed = shown(w, animalBoxes);
        mouse::click(w.cmd_OK);
        EXPECT_EQ(told(1), "Oops!: This tank already has an entry for that animal at that date and time.");
        EXPECT_EQ(shown(w, animalBoxes), typed);
        EXPECT_TRUE(w.txt_timeadded->hasFocus());
        hand::fill(*w.lst_AnimalList, "Crab"); // another animal may come in that second
        hand::type(*w.txt_pricepaid, "");      // and what the refused try had is not kept
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("animalname = 'Crab' AND tankname = 'r1' AND price_paid IS NULL AND Comment = 'second'"), 1);
    EXPECT_EQ(column(1), "Crab Tang");
    change(2, [&](frm_LivesAddEdit &w) { // of two animals of one second the first is taken, whichever was selected
        EXPECT_EQ(w.lst_AnimalList->currentText(), "Crab");
        hand::type(*w.txt_quantity, "7");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(column(2), "7 1");
    EXPECT_EQ(told(0), "");
}

TEST_F(Livestock, DeletingFindsTheRowByTheTanksId)
{
    for (const char *date : {"2026-04-05", "2026-04-15"})
        insert("r1", date, "Nan's Tang");
    open("Reef");
    expectNote("changeentries", "You must first select a log entry to change.");
    for (const bool ok : {false, true}) {
        EXPECT_EQ(remove(2, "Nan's Tang - 04/15/26, 09:30:00 AM entry for the Reef",
                         ok ? MsgBoxAnswer::OK : MsgBoxAnswer::Cancel),
                  "");
        EXPECT_EQ(rows(), ok ? 1 : 2);
    }
    EXPECT_EQ(rows("dateadded = '2026-04-05'"), 1);
}

TEST_F(Livestock, AnAddGoesIntoItsOwnLogWhateverWasOpenedInBetween)
{
    keeper.inNext<frm_TankMaint>([&](frm_TankMaint &w) {
        keeper.inNext<frm_TankAddNew>([](frm_TankAddNew &tank) {
            hand::type(*tank.txt_tanknotes, "a snail");
            mouse::click(tank.cmd_OK);
        });
        mouse::click(w.lst_tanklist->viewport(), w.lst_tanklist->visualItemRect(w.lst_tanklist->item(0)).center());
        mouse::click(w.cmd_ChangeTank);
        mouse::click(w.cmd_ok);
    });
    hand::press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_TRUE(isInFront(*main));
    add([&](frm_LivesAddEdit &w) {
        hand::fill(*w.lst_AnimalList, "Tang");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("tankname = 'r1'"), 1);
    EXPECT_EQ(keeper.count("TANKLST"), 5);
    EXPECT_EQ(column(1), "Tang");
    EXPECT_TRUE(keeper.doors.failures.empty());
}
