// The logbook's commands are for the tank that it shows, whichever tank is in hand and whichever child is in front.
#include "Desk.h"
#include "windows/logbook/frm_LivesAddEdit.h"
#include "windows/logbook/frm_LivesMove.h"
#include "windows/logbook/frm_OMKLogPrint.h"
#include "windows/tanks/frm_TankAddNew.h"
#include "windows/tanks/frm_TankMaint.h"

/// "Reef" and "Bowl" have an entry in each log, at the same moment. The logbook shows the livestock of "Reef".
class StepsIn : public Desk
{
protected:
    StepsIn() : Desk(LivestockTab)
    {
        for (const char *id : {"r1", "b1"}) {
            addEntry(WaterTab, id, "2026-04-05 09:30:00", "ph", "8");
            addEntry(LivestockTab, id, "2026-04-05 09:30:00", "animalname, quantity",
                     QString("'Fish of %1', 1").arg(id));
            addEntry(MaintenanceTab, id, "2026-04-05 09:30:00", "maintlogtask, maintlogqty", "'Feeding', 1");
        }
        open("Reef");
    }
    void takeBowlInHand()
    {
        keeper.g().gTankId = "b1";
        keeper.g().gTankName = "Bowl";
        keeper.g().gTankWaterType = "1";
    }
    /// How many entries a tank has in the water, the livestock and the maintenance log.
    QString entriesOf(const QString &id)
    {
        QString counts;
        for (const char *of : {"WATERLOG WHERE tankname", "LIVESTOCK WHERE tankname", "MAINTLOG WHERE mainttankname"})
            counts += QString::number(keeper.count(QString(of) + " = '" + id + "'"));
        return counts;
    }
    /// How many commands of the File menu that are for the logbook alone can be given.
    auto fileCommands() const
    {
        const MenuEntry *const all[] = {main->mnu_FileNew, main->mnu_FileOpen, main->mnu_FileDelete,
                                        main->mnu_FileMoveEntry};
        return std::ranges::count_if(all, &MenuEntry::isEnabled);
    }
};

TEST_F(StepsIn, AChildIsToldThatItIsInFrontOnceTheDialogOverItHasClosed)
{
    keeper.inNext<frm_TankMaint>([&](frm_TankMaint &w) {
        main->disablePrint();
        main->activateWindow(); // which some desktops let a keeper do
        EXPECT_TRUE(isInFront(*main));
        EXPECT_FALSE(main->mnu_FilePrint->isEnabled()) << "the child was told under the dialog";
        mouse::click(w.cmd_Cancel);
    });
    hand::press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return main->mnu_FilePrint->isEnabled(); }));
}

TEST_F(StepsIn, EveryCommandIsForTheTankThatTheLogbookShows)
{
    takeBowlInHand();
    give<frm_LivesAddEdit>("addentries", 0, [](frm_LivesAddEdit &w) {
        EXPECT_EQ(w.windowTitle(), " Livestock Detail for Reef");
        EXPECT_TRUE(w.opt_Saltwater->isChecked()) << "of a reef";
        hand::press(Qt::Key_Escape);
    });
    takeBowlInHand();
    give<frm_LivesAddEdit>("changeentries", 1, [](frm_LivesAddEdit &w) {
        EXPECT_EQ(w.lst_AnimalList->currentText(), "Fish of r1");
        hand::press(Qt::Key_Escape);
    });
    takeBowlInHand();
    give<frm_LivesMove>("moveentries", 1, [](frm_LivesMove &w) {
        EXPECT_EQ(w.lbl_Move->text(), "Moving Fish of r1 to...");
        hand::press(Qt::Key_Escape);
    });
    takeBowlInHand();
    keeper.told();
    hand::clickRow(list(), 1);
    push("deleteentries");
    EXPECT_TRUE(keeper.told().contains("Fish of r1 - 04/05/26, 09:30:00 AM entry for the Reef tank?"));
    hand::clickTab(*logbook->tab_logtype, WaterTab);
    takeBowlInHand();
    keeper.doors.printers = {PrintDialogAnswer{1}};
    give<frm_OMKLogPrint>("printentries", 0, [&](frm_OMKLogPrint &w) { mouse::click(w.cmd_ok); });
    EXPECT_TRUE(keeper.doors.documents.at(0).pages.at(0).find("Reef"));
    takeBowlInHand();
    push("graphentries");
    EXPECT_EQ(keeper.g().gTankId, "r1");
}

TEST_F(StepsIn, DetailsThatAreCancelledLeaveNoWaterTypeBehind)
{
    keeper.g().gTankWaterType = "3";
    keeper.inNext<frm_TankAddNew>([](frm_TankAddNew &w) {
        mouse::click(w.opt_Pond, QPoint(8, 8));
        hand::press(Qt::Key_Escape);
    });
    Form<frm_TankMaint>().ChangeTankInfo("Bowl");
    EXPECT_EQ(keeper.g().gTankWaterType, "3");
}

TEST_F(StepsIn, TheCommandsOfTheFileMenuGoWithTheLogbookAndAPressAnywhereBringsItToTheFront)
{
    const auto putBehind = [&] {
        hand::choose(*main, *main->mnu_Tools, "mnu_ToolsConversions");
        main->mnu_WindowTileVertical_Click();
        EXPECT_FALSE(main->isInFront(*logbook));
        EXPECT_EQ(fileCommands(), 0);
    };
    EXPECT_EQ(fileCommands(), 4);
    putBehind();
    for (const int tab : {WaterTab, LivestockTab})
        logbook->tab_logtype->setCurrentIndex(tab); // as the wheel over the tabs does
    hand::clickTank(*logbook, "Reef");              // which makes it the one in front
    EXPECT_EQ(fileCommands(), 4);
    putBehind();
    for (const int tab : {WaterTab, LivestockTab})
        logbook->tab_logtype->setCurrentIndex(tab);
    EXPECT_EQ(fileCommands(), 0) << "its lists were filled behind another child";
    QWidget *const takeNoFocus[] = {control<QSplitter>(*logbook, "sp_splitter").handle(1),
                                    list().horizontalHeader()->viewport(), logbook->sb_ListviewCaption};
    for (QWidget *pressed : takeNoFocus) {
        mouse::press(pressed);
        mouse::release(pressed);
        EXPECT_TRUE(main->isInFront(*logbook)) << pressed->metaObject()->className();
        EXPECT_EQ(fileCommands(), 4);
        putBehind();
    }
    takeBowlInHand();
    give<frm_LivesAddEdit>("addentries", 0, [&](frm_LivesAddEdit &w) {
        hand::type(*w.lst_AnimalList, "Eel");
        mouse::click(w.cmd_OK);
    });
    EXPECT_TRUE(main->isInFront(*logbook));
    EXPECT_EQ(entriesOf("r1") + ' ' + entriesOf("b1"), "121 111");
}
