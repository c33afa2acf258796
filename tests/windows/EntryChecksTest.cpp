// What differs between the entry windows.
#include "Desk.h"
#include "platform/controls/UpDown.h"
#include "support/TestFiles.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_MaintAddEdit.h"
#include "windows/logbook/frm_WaterAddEdit.h"

const QString oops = "1|Oops!/48/";

using Water = Desk;

TEST_F(Water, ArrowsCarryNoValueBeyondItsLimitAndStandWhereTheRowDoes)
{
    give<frm_WaterAddEdit>("addentries", 0, [&](frm_WaterAddEdit &w) {
        hand::step(w, "Ud_SG", "up");
        control<UpDown>(w, "Ud_Nitrite").setValue(9990);
        hand::step(w, "Ud_Nitrite", "up"); // 999.1, and the box was never entered
        mouse::click(w.cmd_OK);
        EXPECT_EQ(keeper.told(), oops + "Nitrite entries must be less than 1000.");
        EXPECT_EQ(keeper.count("WATERLOG"), 0);
        hand::step(w, "Ud_Nitrite", "down");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.count("WATERLOG WHERE nitrite = 999 AND sg = 1.024"), 1);
    execute("UPDATE WATERLOG SET ph = 8.2, oxygen = NULL");
    give<frm_WaterAddEdit>("changeentries", 1, [&](frm_WaterAddEdit &w) {
        hand::step(w, "ud_Ph", "up");
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.count("WATERLOG WHERE ph = 8.3 AND oxygen = 0"), 1);
}

class Livestock : public Desk
{
protected:
    Livestock() : Desk(LivestockTab) {}
};

TEST_F(Livestock, AnimalsFollowTheWaterOfTheTankAndTheOptionsSwitchThem)
{
    for (const char *id : {"r1", "Same", "b1", "k1", "p1"}) {
        addEntry(LivestockTab, id, "2026-01-01 09:30:00", "animalname", QString("'zz %1'").arg(id));
        addEntry(LivestockTab, id, "2026-01-02 09:30:00", "animalname", "'Betta'"); // also a word of the list
    }
    const auto expectList = [&](frm_LivesAddEdit &w, bool sea) {
        const QStringList names = lines(*w.lst_AnimalList->model()).split('|');
        EXPECT_EQ(names.filter("zz ").join(','), sea ? "zz r1,zz Same" : "zz b1");
        EXPECT_EQ(names.count("Anemone - Carpet"), sea);
        EXPECT_EQ(names.count("Betta"), 1) << "offered once";
    };
    for (const auto &[tank, sea] : {std::pair("Reef", true), {"Bowl", false}, {"Marsh", false}}) {
        SCOPED_TRACE(tank);
        hand::clickTank(*logbook, tank);
        give<frm_LivesAddEdit>("addentries", 0, [&, sea = sea](frm_LivesAddEdit &w) {
            expectList(w, sea);
            hand::type(*w.lst_AnimalList, "my own");
            mouse::click(sea ? w.opt_Fresh : w.opt_Saltwater, QPoint(8, 8));
            expectList(w, !sea);
            EXPECT_EQ(w.lst_AnimalList->currentText(), "my own");
            hand::press(Qt::Key_Escape);
        });
    }
}

TEST_F(Livestock, NamesComeFromTheFileWhereTheOptionsSaySoAndFromTheDatabaseWhereThereIsNone)
{
    SaveSetting("UseFile_Salt", "TRUE");
    for (const auto &[told, first] :
         {std::pair("0|Names File Not Found!/48/The file containing the", "Anemone - Bubble Tip"), {"0", "Clam"}}) {
        startWith("MMDDYY", "/");
        give<frm_LivesAddEdit>("addentries", 0, [&, told = told, first = first](frm_LivesAddEdit &w) {
            EXPECT_EQ(keeper.told().section(" saltwater", 0, 0), told);
            EXPECT_TRUE(lines(*w.lst_AnimalList->model()).startsWith(first));
            hand::press(Qt::Key_Escape);
        });
        for (const char *file : {"NAMESSW.TXT", "NAMESFW.TXT"}) // the second is looked for in either case
            writeFile(file, QByteArray("Clam").leftJustified(49) + "Tridacna\n");
    }
}

TEST_F(Livestock, ASecondAnimalMayComeInThatSecondAndIsWhatTheChangeFindsFirst)
{
    addEntry(LivestockTab, "r1", "2026-03-14 09:30:00", "animalname, quantity", "'Tang', 1");
    open("Reef");
    give<frm_LivesAddEdit>("addentries", 0, [&](frm_LivesAddEdit &w) {
        hand::type(*w.lst_AnimalList, "Tang");
        hand::type(*w.txt_timeadded, "09:30:00 am");
        hand::type(*w.txt_pricepaid, "5");
        mouse::click(w.cmd_OK);
        EXPECT_TRUE(keeper.told().startsWith(oops + "This tank already has"));
        EXPECT_TRUE(w.txt_timeadded->hasFocus());
        hand::type(*w.lst_AnimalList, "Crab");
        hand::type(*w.txt_pricepaid, ""); // the value of the refused attempt is not kept
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.count("LIVESTOCK WHERE animalname = 'Crab' AND price_paid IS NULL"), 1);
    EXPECT_EQ(column(1), "Crab Tang");
    give<frm_LivesAddEdit>("changeentries", 2, [&](frm_LivesAddEdit &w) { // the first row, whichever was selected
        EXPECT_EQ(w.lst_AnimalList->currentText(), "Crab");
        hand::press(Qt::Key_Escape);
    });
}

TEST_F(Livestock, IsNotMixedUpByAWindowThatAChangeOfMaintenanceLeavesBehind)
{
    addEntry(MaintenanceTab, "r1", "2026-12-25 09:30:00", "maintlogtask", "'Feeding'");
    hand::clickTab(*logbook->tab_logtype, MaintenanceTab);
    give<frm_MaintAddEdit>("changeentries", 1, [](auto &) { hand::press(Qt::Key_Escape); });
    hand::clickTank(*logbook, "Bowl");
    hand::clickTab(*logbook->tab_logtype, LivestockTab);
    give<frm_LivesAddEdit>("addentries", 0, [](frm_LivesAddEdit &w) {
        EXPECT_FALSE(lines(*w.lst_AnimalList->model()).contains("Anemone"));
        hand::press(Qt::Key_Escape);
    });
}
