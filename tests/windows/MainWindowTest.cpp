#include "Desk.h"
#include "support/TestFiles.h"
#include "windows/advisers/frm_DiagDiagnosis.h"
#include "windows/graph/frm_WaterGraph.h"
#include "windows/logbook/frm_WaterAddEdit.h"
#include "windows/reference/frm_Conversions.h"
#include "windows/reference/frm_LatintoCommon.h"
#include "windows/reminders/frm_Maintsched.h"
#include "windows/reminders/frm_Schedule.h"
#include "windows/tanks/frm_TankMaint.h"

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

TEST(Start, EndsAtAFileThatCannotBeUsed)
{
    Keeper keeper;
    keeper.g().gDatabase.reset();
    writeFile(keeper.databaseFile(), QByteArray(5000, 'x'));
    EXPECT_THROW(Form<frm_OMKMDIMain>().MDIForm_Load(), RuntimeFailure);
    EXPECT_FALSE(Form<frm_OMKMDIMain>().isVisible());
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
    main->mnu_WindowTileVertical_Click();
    const auto &units = Form<frm_Conversions>();
    EXPECT_GE(units.lbl_From->width(),
              units.lbl_From->fontMetrics().horizontalAdvance("Gallons Per Minute Flow (gpm)"));
    EXPECT_NE(logbook->parentWidget()->size(), size);
    logbook->close();
    EXPECT_EQ(hand::openLogbook(*main).parentWidget()->size(), size);
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

TEST_F(TheMainWindow, AnotherChildTakesTheLogCommandsAndADialogDoesNot)
{
    give<frm_WaterAddEdit>("addentries", 0, [&](frm_WaterAddEdit &) {
        EXPECT_TRUE(canAdd());
        EXPECT_FALSE(main->mnu_FilePrint->isEnabled());
        EXPECT_EQ(main->mnu_FilePrint->text(), "&Print");
        hand::press(Qt::Key_Escape);
    });
    EXPECT_TRUE(canAdd() && main->mnu_FilePrint->isEnabled());
    EXPECT_EQ(main->mnu_FilePrint->text(), "&Print Entries...");

    main->ShowChild(Form<frm_Conversions>());
    EXPECT_FALSE(main->mnu_FileNew->isEnabled() || main->mnu_FileOpen->isEnabled() ||
                 main->mnu_FileDelete->isEnabled());
    hand::openLogbook(*main);
    EXPECT_TRUE(canAdd());
    EXPECT_EQ(logbook->TreeView1->currentItem()->text(0), "Reef") << "only the first activation builds the tree";
}

TEST_F(TheMainWindow, PrintIsWhatTheChildInFrontOffers)
{
    const auto print = [&]() -> QString {
        return main->mnu_FilePrint->text() + (main->mnu_FilePrint->isEnabled() ? "" : " (off)");
    };
    const auto show = [&](ChildForm &child) {
        main->ShowChild(child);
        return print();
    };
    EXPECT_EQ(print(), "&Print Entries...");
    EXPECT_EQ(show(Form<frm_Conversions>()), "&Print (off)");
    for (ChildForm *child :
         {static_cast<ChildForm *>(&Form<frm_WaterGraph>()), static_cast<ChildForm *>(&Form<frm_Schedule>())}) {
        EXPECT_EQ(show(*child), "&Print");
        hand::choose(*main, *main->mnu_View, "mnu_ViewRefresh"); // of the logbook behind it
        EXPECT_EQ(print(), "&Print") << child->objectName().toStdString();
    }
    EXPECT_EQ(show(*logbook), "&Print Entries... (off)") << "with all tanks in hand";
    for (ChildForm *child : {static_cast<ChildForm *>(logbook), static_cast<ChildForm *>(&Form<frm_Conversions>()),
                             static_cast<ChildForm *>(&Form<frm_WaterGraph>())})
        child->parentWidget()->close();
    EXPECT_EQ(print(), "&Print") << "the schedule is left";
    Form<frm_Schedule>().parentWidget()->close();
    EXPECT_EQ(print(), "&Print (off)");
    // Without a child, "Print" is disabled again after a dialog that can print.
    keeper.inNext<frm_DiagDiagnosis>([&](frm_DiagDiagnosis &w) {
        EXPECT_EQ(print(), "&Print");
        w.close();
    });
    Form<frm_DiagDiagnosis>().Showdiagnosis();
    EXPECT_TRUE(isInFront(*main));
    EXPECT_EQ(print(), "&Print (off)");
}

TEST_F(TheMainWindow, ChildrenOfAVerySmallWindowKeepTheRoomThatTheyNeed)
{
    main->resize(1, 1);
    const auto paint = [&] { // a warning of Qt fails the test
        QCoreApplication::processEvents();
        main->grab();
    };
    for (ChildForm *child :
         {static_cast<ChildForm *>(logbook), static_cast<ChildForm *>(&Form<frm_WaterGraph>()),
          static_cast<ChildForm *>(&Form<frm_Schedule>()), static_cast<ChildForm *>(&Form<frm_Conversions>())}) {
        SCOPED_TRACE(child->objectName().toStdString());
        main->ShowChild(*child);
        paint();
        EXPECT_GT(child->height(), main->centralWidget()->height()) << "it is scrolled, not squeezed";
        child->parentWidget()->showMaximized();
        paint();
        child->parentWidget()->showNormal();
    }
    for (const char *entry : {"mnu_WindowCascade", "mnu_WindowTileHorizontal", "mnu_WindowTileVertical"}) {
        control<QAction>(*main, entry).trigger();
        paint();
    }
}
