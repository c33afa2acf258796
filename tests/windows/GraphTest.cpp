#include "Desk.h"
#include "platform/chart/Chart.h"
#include "windows/shell/frm_OMKOptions.h"

/// The tank "Reef" is in hand in the logbook.
class Graph : public Desk
{
protected:
    /// Tests at nine in the morning of so many days from the first of May on, numbered in their nitrate.
    void addTests(int count, const char *tank = "r1", const char *time = "09:00:00")
    {
        Database::Transaction whole(*keeper.g().gDatabase);
        for (int i = 0; i < count; ++i)
            keeper.g().gDatabase->Execute(
                "INSERT INTO WATERLOG (tankname, logdate, logtime, ph, Ammonia, nitrite, nitrate, custom1, custom2) "
                "VALUES (?, ?, ?, 8.25, 0, 0.05, ?, 1.5, 2.5)",
                {QString(tank), QDate(2026, 5, 1).addDays(i), QString(time), i + 1});
        whole.commit();
    }
    frm_WaterGraph &openGraph()
    {
        push("graphentries");
        QCoreApplication::processEvents();
        return graph();
    }
    static frm_WaterGraph &graph() { return Form<frm_WaterGraph>(); }
    static QString cell(int row, int column)
    {
        const QRectF place = graph().Chart1->place(row, column);
        return place.isNull() ? "(blank)" : graph().Chart1->tip(place.center()).replace('\n', ' ');
    }
    /// First and last row of the chart by the third column, and which buttons can be pressed.
    static QString page()
    {
        const int last = graph().Chart1->RowCount();
        const QString rows = last == 0 ? QString("none") : cell(1, 3) + " - " + cell(last, 3);
        return rows + (graph().cmd_Previous->isEnabled() ? " <" : "") + (graph().cmd_Next->isEnabled() ? " >" : "");
    }
    /// Chooses a line with the keyboard.
    void choose(const QString &tank)
    {
        graph().tanklistbox->setFocus();
        hand::press(Qt::Key_Home);
        while (graph().tanklistbox->currentText() != tank)
            hand::press(Qt::Key_Down);
    }
};

TEST_F(Graph, PagesAreAsLongAsTheTestsThatAreLeft)
{
    const QString first = "5/1 No3: 1 - 5/20 No3: 20 >", second = "5/21 No3: 21 - 6/9 No3: 40 <";
    addTests(50); // after the first page thirty are left, which are two pages: the last ten are not reached
    openGraph();
    EXPECT_EQ(page(), first);
    mouse::click(graph().cmd_Next);
    EXPECT_EQ(page(), second);
    mouse::click(graph().cmd_Previous);
    EXPECT_EQ(page(), first);
    execute("DELETE FROM WATERLOG");
    addTests(90);
    choose("Same"); // and back: the first page
    choose("Reef");
    EXPECT_EQ(page(), first);
    mouse::click(graph().cmd_Next);
    EXPECT_EQ(page(), second + " >");
    mouse::click(graph().cmd_Next);
    EXPECT_EQ(page(), "6/10 No3: 41 - 6/29 No3: 60 <");
    mouse::click(graph().cmd_Previous); // the first entries, and yet it is the second page of the 59 before
    EXPECT_EQ(page(), "5/1 No3: 1 - 5/20 No3: 20 < >");
}

TEST_F(Graph, RowsOfAnotherTankOnTheDayOfTheLastRowComeAlong)
{
    addTests(25);
    addTests(22, "p1", "10:00:00");
    openGraph();
    mouse::click(graph().cmd_Next);
    EXPECT_EQ(cell(1, 3), "5/20 No3: 20") << "the pond's, an hour later";
    EXPECT_EQ(cell(2, 3), "5/21 No3: 21");
    EXPECT_EQ(graph().Chart1->RowCount(), 6);
}

TEST_F(Graph, FewerThanTwoTestsMakeNoGraphAndTheChartStands)
{
    const QString notEnough = "Not Enough Entries To Create A Graph!";
    addTests(1);
    addTests(3, "b1");
    openGraph();
    EXPECT_TRUE(keeper.told().contains(notEnough));
    EXPECT_EQ(page(), "none");
    choose("Bowl");
    keeper.told();
    EXPECT_EQ(page(), "5/1 No3: 1 - 5/3 No3: 3");
    choose("Pond");
    EXPECT_TRUE(keeper.told().contains(notEnough));
    EXPECT_EQ(page(), "5/1 No3: 1 - 5/3 No3: 3");
}

TEST_F(Graph, TheOptionsSayWhatIsDrawnAndTheRightButtonOpensThem)
{
    addTests(2);
    execute("INSERT INTO WATERLOG (tankname, logdate, logtime) VALUES ('r1', '2026-05-02', '21:00:00')");
    auto &window = openGraph();
    EXPECT_EQ(cell(3, 3), "(blank)") << "a field without a value";
    EXPECT_EQ(window.Chart1->RowCount(), 3) << "two of one day";
    keeper.inNext<frm_OMKOptions>([](frm_OMKOptions &w) {
        w.chk_SkipZeroValues->setChecked(true);
        control<QCheckBox>(w, "chk_nitrite").setChecked(false);
        control<QCheckBox>(w, "chk_User1").setChecked(true);
        w.txt_username1->setText("Iodine");
        w.cbo_GraphType->setCurrentIndex(w.cbo_GraphType->findData(14));
        mouse::click(w.cmdOK);
    });
    mouse::click(window.Chart1, QPoint(3, 3), Qt::RightButton);
    clickEntry(*main->mnu_GraphPopup, "mnu_GraphOptions");
    QCoreApplication::processEvents();
    EXPECT_EQ(window.Chart1->chartType(), 14);
    const QString drawn = "(blank)|5/1 No3: 1|5/1 Iodine: 1.5";
    EXPECT_EQ(cell(1, 1) + '|' + cell(1, 2) + '|' + cell(1, 3), drawn);
    keeper.g().options.GraphChecks = "0000000000000";
    window.GraphChart();
    EXPECT_TRUE(keeper.told().startsWith("0|Note!/64/Nothing is selected to graph!"));
    EXPECT_EQ(cell(1, 1) + '|' + cell(1, 2) + '|' + cell(1, 3), drawn) << "the chart stands";
}

TEST_F(Graph, BothWaysIntoItDrawTheTankInHand)
{
    addTests(2);
    addTests(3, "b1");
    auto &window = openGraph();
    EXPECT_EQ(window.tanklistbox->currentText(), "Reef");
    choose("Bowl");
    EXPECT_EQ(keeper.g().gTankId, "b1");
    hand::openLogbook(*main);
    EXPECT_EQ(keeper.g().gTankId, "r1") << "an entry is for the tank that the logbook shows";
    hand::press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(window.tanklistbox->currentText(), "Reef");
    hand::openLogbook(*main);
    hand::clickTank(*logbook, "All Tanks");
    hand::click<QToolButton>(*main, "graphing");
    EXPECT_EQ(window.tanklistbox->currentText(), "Reef") << "the one that it shows";
    execute("DELETE FROM TANKLST");
    window.close();
    keeper.told();
    hand::press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(keeper.told().contains("/You have no tanks"));
    keeper.addTank("Nano", "n1");
    hand::openLogbook(*main);
    hand::press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(graph().tanklistbox->currentText(), "Nano") << "set up since";
}

TEST_F(Graph, WithAllTanksInHandItBeginsWithTheFirstThatHasAGraphAndStaysThere)
{
    addTests(1, "b1");
    addTests(30, "k1"); // "Marsh" comes second
    const auto allTanks = [&] {
        hand::openLogbook(*main);
        hand::clickTank(*logbook, "All Tanks");
        main->ShowChild(graph());
    };
    hand::clickTank(*logbook, "All Tanks");
    keeper.g().options.GraphChecks = "0000000000000";
    hand::press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(keeper.told().startsWith("0|Note!/"));
    EXPECT_EQ(graph().tanklistbox->currentText() + ' ' + page(), "Marsh none") << "nothing to go on to";
    keeper.g().options.GraphChecks = "0111000000000";
    allTanks();
    graph().GraphChart();
    EXPECT_EQ(page(), "5/1 No3: 1 - 5/20 No3: 20 >");
    allTanks();
    mouse::click(graph().cmd_Next);
    EXPECT_EQ(page(), "5/21 No3: 21 - 5/30 No3: 30 <");
    allTanks();
    keeper.inNext<frm_OMKOptions>([](frm_OMKOptions &w) { mouse::click(w.cmdOK); });
    clickEntry(*main->mnu_GraphPopup, "mnu_GraphOptions");
    EXPECT_EQ(page(), "5/21 No3: 21 - 5/30 No3: 30 <");
    allTanks();
    mouse::click(graph().cmd_Previous);
    EXPECT_EQ(page(), "5/1 No3: 1 - 5/20 No3: 20 >");
    EXPECT_EQ(graph().tanklistbox->currentText() + keeper.told(), "Marsh0");
    execute("DELETE FROM WATERLOG");
    graph().close();
    allTanks();
    graph().GraphChart();
    EXPECT_TRUE(keeper.told().contains("Not Enough Entries")) << "no tank has a graph";
}

TEST_F(Graph, AChartGoesWithTheLastTankThatHasOne)
{
    addTests(2);
    openGraph();
    hand::openLogbook(*main);
    keeper.doors.answers = {MsgBoxAnswer::OK};
    hand::clickTank(*logbook, "Reef", Qt::RightButton);
    clickEntry(*main->mnu_tankPopup, "mnu_TankDelete");
    EXPECT_EQ(graph().tanklistbox->currentText() + ' ' + page(), "Bowl none");
    EXPECT_EQ(graph().Chart1->accessibleName(), graph().windowTitle());
    EXPECT_EQ(keeper.g().gTankId, "All Tanks") << "the logbook is in front";
}

TEST_F(Graph, ItsPrintedTitleNamesTheTankDrawn)
{
    addTests(2, "b1");
    addTests(3);
    openGraph();
    const auto printed = [&] {
        keeper.doors.answers = {MsgBoxAnswer::No};
        keeper.doors.printers = {std::nullopt};
        hand::choose(*main, *main->mnu_File, "mnu_FilePrint");
        return graph().Chart1->TitleText();
    };
    choose("Bowl");
    hand::openLogbook(*main); // which takes "Reef" in hand
    main->ShowChild(graph());
    EXPECT_EQ(printed(), "Ostrelmark Graph for Tank: Bowl");
    choose("Pond"); // has no graph, so that the chart stands
    EXPECT_EQ(printed(), "Ostrelmark Graph for Tank: Bowl");
    choose("Reef");
    EXPECT_EQ(graph().Chart1->TitleText(), "Ostrelmark Graph for Tank: Reef") << "the title stays, and is true";
    keeper.told();
}

TEST_F(Graph, PrintsALandscapePageForEachCopy)
{
    addTests(4);
    const auto &frame = static_cast<QMdiSubWindow &>(*openGraph().parentWidget());
    const std::tuple<MsgBoxAnswer, int, bool> rows[] = {// whether to maximize for it, copies, dialog
                                                        {MsgBoxAnswer::Cancel, 0, false},
                                                        {MsgBoxAnswer::No, 2, true},
                                                        {MsgBoxAnswer::Yes, 0, true}};
    for (const auto &[answer, copies, dialog] : rows) {
        keeper.doors.answers = {answer};
        keeper.doors.printers = {std::nullopt};
        if (copies > 0)
            keeper.doors.printers = {PrintDialogAnswer{copies}};
        hand::choose(*main, *main->mnu_File, "mnu_FilePrint");
        EXPECT_TRUE(keeper.told().startsWith("0|Maximize Window?/67/"));
        EXPECT_EQ(frame.isMaximized(), answer == MsgBoxAnswer::Yes);
        EXPECT_EQ(std::exchange(keeper.doors.printDialogs, {}).size(), dialog);
        EXPECT_EQ(keeper.doors.documents.size(), size_t(copies));
        for (const PrintedDocument &document : std::exchange(keeper.doors.documents, {})) {
            ASSERT_TRUE(document.landscape && document.ended && document.pages.size() == 1u);
            EXPECT_EQ(document.pages[0].pictures, std::vector{QRectF(0, 80, 1000, 720)});
        }
    }
}
