#include "AllWindows.h"
#include "Desk.h"

class TheMainWindow : public Desk
{
protected:
    bool canAdd() const { return main->mnu_FileNew->isEnabled() && main->mnu_FileOpen->isEnabled(); }
};

TEST(Start, WarnsOfMissingTanksLastAndShowsNoTipToWhomWantsNone)
{
    Keeper keeper;
    keeper.doors.whileBoxIsUp = [&](const MsgBoxRequest &) { EXPECT_EQ(keeper.tipsAtStart, 1); };
    auto &main = keeper.startProgram();
    EXPECT_TRUE(keeper.told().startsWith("1|No Tanks Set Up Yet/48/You have no tanks set up"));
    EXPECT_FALSE(main.button("logbook").isEnabled() || main.button("graphing").isEnabled() ||
                 main.mnu_FilePrint->isEnabled());
    keeper.inNext<frm_OMKtod>([](frm_OMKtod &tip) {
        click(*tip.chk_ShowTipsAtStartup);
        hand::press(Qt::Key_Return);
    });
    hand::choose(main, *main.mnu_Help, "mnu_HelpTod");
    keeper.addTank("Reef", "1");
    keeper.restart();
    keeper.startProgram();
    EXPECT_EQ(keeper.tipsAtStart, 1);
    EXPECT_EQ(keeper.told(), "0");
}

TEST(Start, LeavesNoPlaceEmptyWithoutSayingWhatToDo)
{
    Keeper keeper;
    auto &main = keeper.startProgram();
    const auto says = [](QWidget &window, const char *place, const char *start) {
        QCoreApplication::processEvents();
        const QString text = control<QWidget>(window, place).accessibleDescription();
        EXPECT_TRUE(*start ? text.startsWith(start) : text.isEmpty()) << place << ": " << text.toStdString();
    };
    says(main, "mdiArea", "Set up your first tank: ");
    const QImage told = main.centralWidget()->grab().toImage();
    keeper.inNext<frm_TankMaint>([&](frm_TankMaint &w) {
        says(w, "lst_tanklist", "There are no tanks yet.");
        keeper.addTank("Reef", "1");
        hand::press(Qt::Key_Escape);
    });
    hand::press(Qt::Key_T, Qt::ControlModifier);
    says(main, "mdiArea", "Open the logbook: ");
    auto &logbook = hand::openLogbook(main);
    says(main, "mdiArea", "");
    says(logbook, "lstv_WaterLog", "Choose a tank on the left");
    hand::clickTank(logbook, "Reef");
    says(logbook, "lstv_WaterLog", "There are no entries yet.");
    keeper.told();
    hand::press(Qt::Key_G, Qt::ControlModifier);
    says(Form<frm_WaterGraph>(), "Chart1", "There is no graph yet.");
    hand::press(Qt::Key_E, Qt::ControlModifier);
    says(Form<frm_Maintsched>(), "lstv_MaintSched", "There are no reminders yet.");
    main.MDIForm_Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    says(main, "mdiArea", "Open the logbook: ");
    EXPECT_NE(main.centralWidget()->grab().toImage(), told);
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
    EXPECT_TRUE(main->mnu_ToolsLogbook->isEnabled());
    EXPECT_FALSE(main->mnu_FileNew->isEnabled()) << "the open logbook has let go of the tank";
    EXPECT_EQ(logbook->TreeView1->topLevelItem(0)->childCount(), 0);
    keeper.addTank("Reef", "1");
    setUpTanks();
    EXPECT_TRUE(main->button("logbook").isEnabled());
    EXPECT_EQ(keeper.told() + keeper.g().gNoTanks, "0N");
    keeper.doors.answers = {MsgBoxAnswer::OK};
    hand::clickTank(*logbook, "Reef", Qt::RightButton);
    clickEntry(*main->mnu_tankPopup, "mnu_TankDelete");
    EXPECT_FALSE(main->button("graphing").isEnabled()) << "from the tree's menu, too";
}

TEST_F(TheMainWindow, TiledChildrenKeepTheRoomThatTheyNeedAndTheirSizesAreNotRemembered)
{
    const QSize size = logbook->parentWidget()->size();
    for (ChildForm *child :
         {static_cast<ChildForm *>(&Form<frm_Conversions>()), static_cast<ChildForm *>(&Form<frm_LatintoCommon>())}) {
        main->ShowChild(*child);
        keeper.told();
    }
    hand::choose(*main, *main->mnu_Window, "mnu_WindowTileVertical");
    const auto &units = Form<frm_Conversions>();
    EXPECT_GE(units.lbl_From->width(),
              units.lbl_From->fontMetrics().horizontalAdvance("Gallons Per Minute Flow (gpm)"));
    EXPECT_NE(logbook->parentWidget()->size(), size);
    const auto places = [&] { return logbook->parentWidget()->pos() - units.parentWidget()->pos(); };
    EXPECT_TRUE(places().x() != 0 && places().y() == 0) << "side by side";
    logbook->close();
    logbook = &hand::openLogbook(*main);
    EXPECT_EQ(logbook->parentWidget()->size(), size);
    hand::choose(*main, *main->mnu_Window, "mnu_WindowTileHorizontal");
    EXPECT_TRUE(places().x() == 0 && places().y() != 0) << "one above the other";
}

TEST_F(TheMainWindow, ViewTakesTheToolbarAwayButNotTheReminders)
{
    for (const bool shown : {false, true}) {
        hand::choose(*main, *main->mnu_View, "mnu_ViewToolbar");
        QCoreApplication::processEvents();
        EXPECT_EQ(control<QToolButton>(*main, "logbook").isVisible(), shown);
        EXPECT_TRUE(main->cbo_Reminders->isVisible());
    }
}

TEST_F(TheMainWindow, ALogbookThatIsAnIconTakesCommandsAndComesUpFromTheWindowMenuAndCascadeKeepsSizes)
{
    QWidget &frame = *logbook->parentWidget();
    const QSize size = frame.size();
    frame.showMinimized();
    QCoreApplication::processEvents();
    keeper.inNext<frm_WaterAddEdit>([](frm_WaterAddEdit &w) { mouse::click(w.cmd_OK); });
    hand::press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(keeper.count("WATERLOG"), 1);
    emit main->mnu_Window->aboutToShow();
    for (QAction *action : main->mnu_Window->actions())
        if (action->text().contains("Logbook"))
            action->trigger();
    EXPECT_TRUE(logbook->isVisible() && !frame.isMinimized());
    main->ShowChild(Form<frm_Conversions>());
    hand::choose(*main, *main->mnu_Window, "mnu_WindowCascade");
    EXPECT_EQ(frame.size(), size);
}

TEST_F(TheMainWindow, PrintIsWhatTheChildOrDialogInFrontOffers)
{
    const auto print = [&]() -> QString {
        return main->mnu_FilePrint->text() + (main->mnu_FilePrint->isEnabled() ? "" : " (off)");
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
    keeper.inNext<frm_DiagDiagnosis>([&](frm_DiagDiagnosis &w) {
        EXPECT_EQ(print(), "&Print");
        w.close();
    });
    Form<frm_DiagDiagnosis>().Showdiagnosis();
    EXPECT_TRUE(isInFront(*main));
    EXPECT_EQ(print(), "&Print (off)");
}

TEST_F(TheMainWindow, AChildIsToldThatItIsInFrontOnceTheDialogOverItHasClosed)
{
    keeper.inNext<frm_TankMaint>([&](frm_TankMaint &w) {
        main->disablePrint();
        main->activateWindow(); // some desktops let the keeper do this
        EXPECT_TRUE(isInFront(*main));
        EXPECT_FALSE(main->mnu_FilePrint->isEnabled()) << "the child was told under the dialog";
        mouse::click(w.cmd_Cancel);
    });
    hand::press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return main->mnu_FilePrint->isEnabled(); }));
}

TEST_F(TheMainWindow, TheLogCommandsGoWithTheLogbookAndAPressAnywhereBringsItToTheFront)
{
    QWidget *const takeNoFocus[] = {control<QSplitter>(*logbook, "sp_splitter").handle(1),
                                    list().horizontalHeader()->viewport(), logbook->sb_ListviewCaption};
    for (QWidget *pressed : takeNoFocus) {
        EXPECT_TRUE(canAdd());
        hand::choose(*main, *main->mnu_Tools, "mnu_ToolsConversions");
        main->mnu_WindowTileVertical_Click();
        EXPECT_FALSE(main->isInFront(*logbook) || canAdd());
        for (const int tab : {LivestockTab, WaterTab}) // the mouse wheel over the tabs does the same
            logbook->tab_logtype->setCurrentIndex(tab);
        EXPECT_FALSE(canAdd()) << "its lists were filled behind another child";
        mouse::press(pressed);
        mouse::release(pressed);
        EXPECT_TRUE(main->isInFront(*logbook) && canAdd()) << pressed->metaObject()->className();
    }
}
