// What differs between the entry windows.
#include "Desk.h"
#include "platform/controls/UpDown.h"
#include "support/TestFiles.h"
#include "windows/common/frm_Caltool.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_MaintAddEdit.h"
#include "windows/logbook/frm_WaterAddEdit.h"

using Water = Desk;

TEST_F(Water, ArrowsCarryNoValueBeyondItsLimitAndTheCalendarFillsTheDateBox)
{
    give<frm_WaterAddEdit>("addentries", 0, [&](frm_WaterAddEdit &w) {
        control<UpDown>(w, "Ud_Nitrite").setValue(9990);
        hand::step(w, "Ud_Nitrite", "up"); // 999.1, and the box was never entered
        mouse::click(w.cmd_OK);
        EXPECT_EQ(keeper.told(), "1|Oops!/48/Nitrite entries must be less than 1000.");
        hand::step(w, "Ud_Nitrite", "down");
        mouse::click(w.cmd_OK);
    });
    execute("UPDATE WATERLOG SET ph = 8.2, oxygen = NULL");
    give<frm_WaterAddEdit>("changeentries", 1, [&](frm_WaterAddEdit &w) {
        hand::step(w, "ud_Ph", "up"); // from where the row is
        keeper.inNext<frm_Caltool>([](auto &calendar) { hand::click<QPushButton>(calendar, "cmdDay_20"); });
        mouse::click(w.cmd_Caldate);
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.count("WATERLOG WHERE nitrite = 999 AND ph = 8.3 AND oxygen = 0 AND logdate = '2026-03-21'"), 1);
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
    // A change of maintenance leaves the window for livestock loaded, with the animals of that tank's water.
    addEntry(MaintenanceTab, "r1", "2026-12-25 09:30:00", "maintlogtask", "'Feeding'");
    hand::clickTab(*logbook->tab_logtype, MaintenanceTab);
    give<frm_MaintAddEdit>("changeentries", 1, [](auto &) { hand::press(Qt::Key_Escape); });
    hand::clickTab(*logbook->tab_logtype, LivestockTab);
    for (const auto &[tank, sea] : {std::pair("Bowl", false), {"Reef", true}, {"Marsh", false}}) {
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
    startWith("MMDDYY", "/");
    give<frm_LivesAddEdit>("addentries", 0, [&](frm_LivesAddEdit &w) {
        EXPECT_TRUE(keeper.told().startsWith("0|Names File Not Found!/48/The file containing the saltwater"));
        EXPECT_EQ(w.lst_AnimalList->itemText(0), "Anemone - Bubble Tip");
        writeFile("NAMESFW.TXT", "");
        writeFile("NAMESSW.TXT", QByteArray("Clam").leftJustified(49) + "Tridacna\n");
        click(*w.opt_Fresh);
        click(*w.opt_Saltwater);
        EXPECT_EQ(w.lst_AnimalList->itemText(0) + keeper.told(), "Clam0");
        hand::press(Qt::Key_Escape);
    });
}

TEST_F(Livestock, ASecondAnimalMayComeInThatSecondAndIsWhatTheChangeFindsFirst)
{
    addEntry(LivestockTab, "r1", "2026-03-14 09:26:53", "animalname, quantity", "'Tang', 1");
    give<frm_LivesAddEdit>("addentries", 0, [&](frm_LivesAddEdit &w) {
        hand::type(*w.lst_AnimalList, "Tang");
        hand::type(*w.txt_pricepaid, "5");
        mouse::click(w.cmd_OK);
        EXPECT_TRUE(keeper.told().contains("This tank already has"));
        hand::type(*w.lst_AnimalList, "Crab");
        hand::type(*w.txt_pricepaid, ""); // the value of the refused attempt is not kept
        mouse::click(w.cmd_OK);
    });
    EXPECT_EQ(keeper.count("LIVESTOCK WHERE animalname = 'Crab' AND price_paid IS NULL"), 1);
    give<frm_LivesAddEdit>("changeentries", 2, [&](frm_LivesAddEdit &w) { // the first row, whichever was selected
        EXPECT_EQ(w.lst_AnimalList->currentText(), "Crab");
        hand::press(Qt::Key_Escape);
    });
}
