#include "AllWindows.h"
#include "Desk.h"
#include "platform/chart/Chart.h"

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

TEST_F(TheMainWindow, TilesItsChildrenNoSmallerThanTheyCanBeAndForgetsThoseSizes)
{
    const QSize size = logbook->parentWidget()->size();
    for (const char *tool : {"mnu_ToolsConversions", "mnu_ToolsCommonNames"})
        hand::choose(*main, *main->mnu_Tools, tool);
    const auto &units = Form<frm_Conversions>();
    const auto between = [&] { return logbook->parentWidget()->pos() - units.parentWidget()->pos(); };
    hand::choose(*main, *main->mnu_Window, "mnu_WindowTileVertical");
    EXPECT_TRUE(between().x() != 0 && between().y() == 0) << "side by side";
    EXPECT_GE(units.lbl_From->width(),
              units.lbl_From->fontMetrics().horizontalAdvance("Gallons Per Minute Flow (gpm)"));
    logbook->close();
    logbook = &hand::openLogbook(*main);
    EXPECT_EQ(logbook->parentWidget()->size(), size);
    hand::choose(*main, *main->mnu_Window, "mnu_WindowTileHorizontal");
    EXPECT_TRUE(between().x() == 0 && between().y() != 0) << "one above the other";
}

TEST_F(TheMainWindow, EachEmptyPlaceSaysWhatToDo)
{
    const auto says = [](const QWidget &place) {
        QCoreApplication::processEvents();
        return place.accessibleDescription();
    };
    EXPECT_EQ(says(*main->centralWidget()), "") << "the logbook is open";
    EXPECT_TRUE(says(list()).startsWith("There are no entries yet."));
    addEntry(WaterTab, "r1", "2026-03-01 09:30:00", "ph", "8");
    hand::clickTank(*logbook, "Reef");
    EXPECT_EQ(says(list()), "");
    hand::clickTank(*logbook, "All Tanks");
    EXPECT_TRUE(says(list()).startsWith("Choose a tank on the left"));
    hand::press(Qt::Key_E, Qt::ControlModifier);
    EXPECT_TRUE(says(*Form<frm_Maintsched>().lstv_MaintSched).startsWith("There are no reminders yet."));
    hand::press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(says(*Form<frm_WaterGraph>().Chart1).startsWith("There is no graph yet."));
}
