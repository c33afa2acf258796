#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "common/frm_Caltool.h"
#include "Desk.h"
#include "logbook/frm_LivesAddEdit.h"
#include "shell/frm_OMKOptions.h"
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
    QString panel() const { return control<QLabel>(*main, "sbStatusBar_1").text(); }
    void writeNames(const QString &name, const QString &names)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("! Names" + QByteArray(60, '-') + "\r\n\r\n" + QByteArray("Too short").leftJustified(49) + "X\r\n");
        for (const QString &animal : names.split('|'))
            file.write(animal.toLatin1().leftJustified(49) + "Latin name\r\n");
    }
};

namespace {

const std::vector<const char *> animalBoxes = {"lst_AnimalList", "txt_DateAdded", "txt_timeadded", "txt_quantity",
                                               "lst_where",      "txt_pricepaid", "txt_pricesold", "txt_datelost",
                                               "lst_Status",     "txt_Comment"};

const char *const badAcquired = "Oops!: You must enter a valid date to add a livestock entry to the log.";

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
    const QString noTime = "Oops!: You must enter a valid time in \"HH:MM:SS am\" format to add a livestock entry to "
                           "the log.";
    const QString noName = "Oops!: You must enter an animal name or pick one from the list to add a livestock entry to "
                           "the log.";
    add([&](frm_LivesAddEdit &w) {
        EXPECT_EQ(w.windowTitle(), " Livestock Detail for Reef");
        EXPECT_EQ(shown(w, animalBoxes), "|03/14/26|09:26:53 am|1||||__/__/__|| ");
        w.txt_DateAdded->setText({}); // by typing it would be caught on leaving
        walk(w,
             {{"lst_AnimalList", "", noName},
              {"lst_AnimalList", QString(51, 'a'), "Note!: Your animal description must be less than 50 characters."},
              {"lst_AnimalList", QString(50, 'a'), ""},
              {"lst_where", QString(51, 'w'), "Note!: Your place of purchase must be less than 50 characters."},
              {"lst_where", QString(50, 'w'), ""},
              {"txt_DateAdded", "  /  /  ", badLost},
              {"txt_DateAdded", "04/05/26", ""},
              {"txt_datelost", "02/30/26", badLost},
              {"txt_datelost", "02/3", badLost},
              {"txt_datelost", "05/06/26", ""},
              {"txt_pricepaid", "abc", "Oops!: Price Paid must be a number."},
              {"txt_pricepaid", "1,234.5", ""},
              {"txt_pricesold", "1.2.3", "Oops!: Price Sold must be a number."},
              {"txt_pricesold", "-2", ""},
              {"lst_Status", QString(31, 's'), "Note!: Your status description must be less than 30 characters."},
              {"lst_Status", QString(30, 's'), ""},
              {"txt_quantity", "32001", tooMany},
              {"txt_quantity", "32,001", tooMany},
              {"txt_quantity", "99999x", tooMany},
              {"txt_quantity", "abc", noAmount},
              {"txt_quantity", "", noAmount},
              {"txt_quantity", "32,000", ""},
              {"txt_timeadded", "13:00:00 PM", noTime},
              {"txt_timeadded", "", noTime},
              {"txt_timeadded", "12:00:01 AM", ""}});
        EXPECT_EQ(rows(), 0);
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(rows("length(animalname) = 50 AND length(where_purch) = 50 AND dateadded = '2026-04-05' AND datelost = "
                   "'2026-05-06' AND price_paid = 1234.5 AND price_sold = -2 AND length(Status) = 30 AND "
                   "quantity = 32000 AND timeadded = '00:00:01' AND Comment = ' ' AND tankname = 'r1'"),
              1);
}

TEST_F(Livestock, ABadDateAcquiredIsCaughtOnLeavingIt)
{
    add([&](frm_LivesAddEdit &w) {
        hand::fill(*w.lst_AnimalList, "Tang");
        expectCaught(w, *w.txt_DateAdded, {"", "4", "02/30/26", "31/12/26"}, w.txt_quantity, badAcquired);
        hand::type(*w.txt_DateAdded, "03/x");
        EXPECT_EQ(told(1), badAcquired);
        mouse::click(w.cmd_Cancel);
    });
    EXPECT_EQ(told(0), "");
    EXPECT_EQ(rows(), 0);
}

TEST_F(Livestock, ValuesLandInTheirColumnsAndClearedOnesStayAsTheyWere)
{
    const struct
    {
        const char *order, *delimiter, *april5, *may25, *april6;
    } orders[] = {{"MMDDYY", "/", "04/05/26", "05/25/26", "04/06/26"},
                  {"DDMMYY", ".", "05.04.26", "25.05.26", "06.04.26"},
                  {"YYMMDD", "-", "26-04-05", "26-05-25", "26-04-06"}};
    const QString all =
        "tankname = 'r1' AND timeadded = '21:05:07' AND animalname = 'Nan''s \"Tang\"' AND price_paid = "
        "12.5 AND price_sold = 7 AND datelost = '2026-05-25' AND Status = 'Sold' AND where_purch = 'Zoo' "
        "AND Comment = 'shy' || char(10) || 'fish' AND ";
    for (const auto &row : orders) {
        SCOPED_TRACE(row.order);
        startWith(row.order, row.delimiter);
        const char *const typed[] = {"Nan's \"Tang\"", row.april5, "09:05:07 pm", "3",    "Zoo",
                                     "12.5",           "7",        row.may25,     "Sold", "shy\nfish"};
        add([&](frm_LivesAddEdit &w) {
            for (size_t i = 0; i < animalBoxes.size(); ++i)
                hand::fill(control<QWidget>(w, animalBoxes[i]), typed[i]);
            keeper.inNext<frm_Caltool>([](frm_Caltool &c) {
                EXPECT_EQ(c.lblReturnDate->text(), "04/05/2026");
                hand::press(Qt::Key_Return);
            });
            mouse::click(w.cmd_Caldate);
            mouse::click(w.cmd_OK);
        });
        EXPECT_EQ(rows(all + "dateadded = '2026-04-05' AND quantity = 3"), 1);
        change(1, [&](frm_LivesAddEdit &w) {
            EXPECT_EQ(w.windowTitle(), " Livestock Detail for Reef");
            EXPECT_EQ(shown(w, animalBoxes), QString("Nan's \"Tang\"|") + row.april5 + "|09:05:07 PM|3|Zoo|12.5|7|" +
                                                 row.may25 + "|Sold|shy\nfish");
            for (const char *box : {"txt_pricepaid", "txt_pricesold", "txt_datelost"})
                hand::type(control<QWidget>(w, box), "");
            hand::type(*w.txt_DateAdded, row.april6);
            hand::type(*w.txt_quantity, "4");
            hand::press(Qt::Key_Return);
        });
        EXPECT_EQ(rows(all + "dateadded = '2026-04-06' AND quantity = 4"), 1);
        EXPECT_EQ(rows(), 1);
        execute("DELETE FROM LIVESTOCK");
    }
    EXPECT_EQ(told(0), "");
}

TEST_F(Livestock, PlacesAndStatusWordsOfEveryTankAreOfferedAndBlanksAreNot)
{
    insert("b1", "2026-01-01", "a", "Status = 'sick of it', where_purch = 'Zoo'");
    insert("p1", "2026-01-02", "b", "Status = 'Sold', where_purch = 'a friend'");
    insert("p1", "2026-01-03", "c", "Status = 'Sold', where_purch = 'Zoo'");
    insert("r1", "2026-01-04", "d", "Status = NULL, where_purch = NULL");
    QString words = "Active|Available|Deceased|In quarantine|On-order|Sale Pending|Sick|sick of it|Sold";
    QString places = "a friend|Zoo";
    const std::pair<const char *, const char *> entered[] = {{" ", " "}, {"", ""}, {"bought", "Expo"}};
    for (const auto &[status, place] : entered)
        add([&, status = status, place = place](frm_LivesAddEdit &w) {
            EXPECT_EQ(offered(*w.lst_Status), words);
            EXPECT_EQ(offered(*w.lst_where), places);
            hand::fill(*w.lst_AnimalList, QString("Tang ") + place);
            hand::fill(*w.lst_Status, status);
            hand::fill(*w.lst_where, place);
            mouse::click(w.cmd_OK);
        });
    EXPECT_EQ(stored("group_concat(Status || '=' || where_purch, '|') AS x FROM LIVESTOCK WHERE animalname LIKE 'T%'"),
              " = |=|bought=Expo");
    add([&](frm_LivesAddEdit &w) {
        EXPECT_EQ(offered(*w.lst_Status), words.replace("Deceased", "bought|Deceased"));
        EXPECT_EQ(offered(*w.lst_where), places.replace("Zoo", "Expo|Zoo"));
        hand::press(Qt::Key_Escape);
    });
    change(1, [&](frm_LivesAddEdit &w) { // Nulls are empty
        EXPECT_EQ(w.lst_Status->currentText() + w.lst_where->currentText(), "");
        hand::press(Qt::Key_Escape);
    });
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
        EXPECT_EQ(w.opt_Fresh->isChecked(), !sea);
        for (const auto &[animal, inSea] :
             {std::pair("Anemone - Carpet", true), std::pair("zz r1", true), std::pair("zz Same", true),
              std::pair("Guppy", false), std::pair("zz b1", false)})
            EXPECT_EQ(offers(w, animal), inSea == sea) << animal;
        for (const char *never : {"zz k1", "zz p1", "Water Change", ""})
            EXPECT_FALSE(offers(w, never)) << never;
        EXPECT_TRUE(offers(w, "Betta"));
        QStringList order = offered(*w.lst_AnimalList).split('|');
        EXPECT_TRUE(std::ranges::is_sorted(order, {}, [](const QString &text) { return text.toCaseFolded(); }));
        EXPECT_EQ(panel(), "Ready.");
    };
    for (const auto &[tank, sea] : {std::pair("Reef", true), std::pair("Same", true), std::pair("Bowl", false),
                                    std::pair("Marsh", false), std::pair("Pond", false)}) {
        SCOPED_TRACE(tank);
        hand::clickTank(*logbook, tank);
        add([&, sea = sea](frm_LivesAddEdit &w) {
            expectList(w, sea);
            hand::fill(*w.lst_AnimalList, "my own");
            hand::fill(*w.lst_where, "Zoo");
            const QString typed = shown(w, animalBoxes);
            mouse::click(sea ? w.opt_Fresh : w.opt_Saltwater, QPoint(8, 8));
            expectList(w, !sea);
            EXPECT_EQ(shown(w, animalBoxes), typed);
            hand::press(Qt::Key_Escape);
        });
    }
}

TEST_F(Livestock, ListsComeFromTheNameFilesWhereTheOptionsSaySo)
{
    keeper.inNext<frm_OMKOptions>([](frm_OMKOptions &w) {
        hand::clickTab(*w.SSTab1, 2);
        mouse::click(w.opt_UseSaltFile, QPoint(8, 8));
        mouse::click(w.opt_UseFreshFile, QPoint(8, 8));
        mouse::click(w.cmdOK);
    });
    hand::choose(*main, *main->mnu_View, "mnu_ViewOptions");
    EXPECT_FALSE(Forms::current().loaded<frm_OMKOptions>());

    const auto box = [](const char *names, const char *cannotView, const char *more) {
        return QString("Names File Not Found!: The file containing the %1 is missing or not in the correct format. You "
                       "will not be able to view %2 using the file. Change the setting in the \"Options...\" menu "
                       "setting, on the \"Lists\" tab. Contact Velmoor via email or download the file from the Velmoor "
                       "Website at http://www.velmoor.example to obtain a copy of the file.%3")
            .arg(names, cannotView, more);
    };
    const char *const salt = "saltwater names (NAMESSW.TXT)", *const fresh = "freshwater names (NAMESFW.TXT)";
    const char *const instead = "\nThe Ostrelmark database version of the list will be used.";
    struct Told
    {
        QString box, panel, animals; ///< the first of the list, if any
    };
    const Told seaOfTheDatabase = {box(salt, "freshwater names", instead), "Ready.", "Anemone - Bubble Tip"};
    const Told riverOfTheDatabase = {box(fresh, "freshwater names", instead), "Ready.", "Algaeeater"};
    const Told river = {"", "3 names loaded.", "Betta|betta - Royal |Gourami - Kissing "};
    const struct
    {
        std::vector<QString> files;
        Told sea, river;
    } rows[] = {
        {{}, seaOfTheDatabase, riverOfTheDatabase},
        {{"namessw.txt"}, seaOfTheDatabase, riverOfTheDatabase}, // the other file is looked for, whichever is wanted
        {{"NamesFW.Txt"}, {box(salt, "saltwater animal names", ""), "Loading...", ""}, river},
        {{"NAMESFW.TXT", "NAMESSW.TXT"}, {"", "2 names loaded.", "Tang - Red Sea Sailfin |Tang - Yellow "}, river},
    };
    keeper.doors.whileBoxIsUp = [this](const MsgBoxRequest &) { EXPECT_EQ(panel(), "Loading..."); };
    for (const auto &row : rows) {
        SCOPED_TRACE(&row - rows);
        for (const char *file : {"NAMESFW.TXT", "NAMESSW.TXT", "namessw.txt", "NamesFW.Txt"})
            QFile::remove(file);
        for (const QString &file : row.files)
            writeNames(file, file.toUpper() == u"NAMESFW.TXT" ? "Kissing Gourami|Royal betta|Betta"
                                                              : "Yellow Tang|Red Sea Sailfin Tang");
        add([&](frm_LivesAddEdit &w) {
            for (const Told *expected : {&row.sea, &row.river}) {
                EXPECT_EQ(told(0), expected->box);
                EXPECT_EQ(panel(), expected->panel);
                EXPECT_EQ(offered(*w.lst_AnimalList).left(expected->animals.size()), expected->animals);
                EXPECT_EQ(w.lst_AnimalList->count() == 0, expected->animals.isEmpty());
                mouse::click(w.opt_Fresh, QPoint(8, 8));
            }
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
    expectNote("deleteentries", "You must first select a log entry to delete");
    expectNote("moveentries", "You must first select a log entry to move.");
    for (const bool ok : {false, true}) {
        EXPECT_EQ(remove(2, "Nan's Tang - 04/15/26, 09:30:00 AM entry for the Reef",
                         ok ? MsgBoxAnswer::OK : MsgBoxAnswer::Cancel),
                  "");
        EXPECT_EQ(rows(), ok ? 1 : 2);
        EXPECT_EQ(list().Count(), ok ? 1 : 2);
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
