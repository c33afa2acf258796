#include "AllWindows.h"
#include "Desk.h"

using TheMainWindow = Desk;

TEST(StartOfTheWindows, WarnsOfMissingTanksLastAndShowsNoTipToWhomWantsNone)
{
    Keeper keeper;
    keeper.doors.whileBoxIsUp = [&](const MsgBoxRequest &) { EXPECT_EQ(keeper.tipsAtStart, 1); };
    auto &main = keeper.startProgram();
    EXPECT_TRUE(keeper.told().startsWith("1|No Tanks Set Up Yet/48/You have no tanks set up"));
    EXPECT_TRUE(main.centralWidget()->accessibleDescription().startsWith("Set up your first tank: "));
    EXPECT_FALSE(main.button("logbook").isEnabled() || main.button("graphing").isEnabled() ||
                 main.mnu_FilePrint->isEnabled());
    keeper.inNext<frm_OMKtod>([](frm_OMKtod &tip) {
        click(*tip.chk_ShowTipsAtStartup);
        hand::press(Qt::Key_Return);
    });
    hand::choose(main, *main.mnu_Help, "mnu_HelpTod");
    keeper.addTank("Reef", "1");
    keeper.restart();
    EXPECT_TRUE(keeper.startProgram().centralWidget()->accessibleDescription().startsWith("Open the logbook: "));
    EXPECT_EQ(keeper.tipsAtStart, 1);
    EXPECT_EQ(keeper.told(), "0");
}

TEST_F(TheMainWindow, LogbookButtonAndTheOpenLogbookFollowTheTankListWithoutARestart)
{
    const auto setUpTanks = [&] {
        keeper.inNext<frm_TankMaint>([](frm_TankMaint &) { hand::press(Qt::Key_Escape); });
        hand::click<QToolButton>(*main, "tanksetup");
        EXPECT_TRUE(isInFront(*main));
    };
    execute("DELETE FROM TANKLST");
    setUpTanks();
    EXPECT_TRUE(keeper.told().startsWith("1|No Tanks Set Up Yet/48/"));
    EXPECT_FALSE(main->button("logbook").isEnabled());
    EXPECT_FALSE(main->mnu_FileNew->isEnabled()) << "the open logbook has let go of the tank";
    keeper.addTank("Reef", "1");
    setUpTanks();
    EXPECT_TRUE(main->button("logbook").isEnabled());
    EXPECT_EQ(keeper.told(), "0");
    keeper.doors.answers = {MsgBoxAnswer::OK};
    hand::clickTank(*logbook, "Reef", Qt::RightButton);
    clickEntry(*main->mnu_tankPopup, "mnu_TankDelete");
    EXPECT_FALSE(main->button("graphing").isEnabled()) << "from the tree's menu, too";
}

TEST_F(TheMainWindow, PrintIsWhatTheChildInFrontOffers)
{
    const auto print = [&] {
        return main->mnu_FilePrint->text().append(main->mnu_FilePrint->isEnabled() ? "" : " (off)");
    };
    EXPECT_EQ(print(), "&Print Entries...");
    main->ShowChild(Form<frm_Conversions>());
    EXPECT_EQ(print(), "&Print (off)");
    main->ShowChild(Form<frm_Schedule>());
    hand::choose(*main, *main->mnu_View, "mnu_ViewRefresh"); // of the logbook behind it
    EXPECT_EQ(print(), "&Print");
    main->ShowChild(*logbook);
    EXPECT_EQ(print(), "&Print Entries... (off)") << "with all tanks in hand";
    logbook->parentWidget()->close();
    Form<frm_Conversions>().parentWidget()->close();
    EXPECT_EQ(print(), "&Print") << "the schedule is left";
    Form<frm_Schedule>().parentWidget()->close();
    EXPECT_EQ(print(), "&Print (off)");
}

TEST_F(TheMainWindow, TheLogCommandsGoWithTheLogbookAndAPressAnywhereBringsItToTheFront)
{
    QWidget *const takeNoFocus[] = {control<QSplitter>(*logbook, "sp_splitter").handle(1),
                                    list().horizontalHeader()->viewport(), logbook->sb_ListviewCaption};
    for (QWidget *pressed : takeNoFocus) {
        hand::choose(*main, *main->mnu_Tools, "mnu_ToolsConversions");
        main->mnu_WindowTileVertical_Click();
        for (const int tab : {LivestockTab, WaterTab}) // the mouse wheel over the tabs does the same
            logbook->tab_logtype->setCurrentIndex(tab);
        EXPECT_FALSE(main->isInFront(*logbook) || main->mnu_FileNew->isEnabled() || main->mnu_FileOpen->isEnabled());
        mouse::click(pressed);
        EXPECT_TRUE(main->isInFront(*logbook) && main->mnu_FileNew->isEnabled() && main->mnu_FileOpen->isEnabled())
            << pressed->metaObject()->className();
    }
}
