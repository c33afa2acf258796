#include "Desk.h"
#include "platform/chart/Chart.h"
#include "windows/graph/frm_WaterGraph.h"

/// The logbook is at the tank "Reef".
class Graph : public Desk
{
protected:
    /// Adds a test at nine in the morning for each of so many days from the first of May, numbered in their nitrate.
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
    /// The first and the last row of the chart with the third column, and the enabled buttons.
    static QString page()
    {
        const int last = graph().Chart1->RowCount();
        const QString rows = last == 0 ? QString("none") : cell(1, 3) + " - " + cell(last, 3);
        return rows + (graph().cmd_Previous->isEnabled() ? " <" : "") + (graph().cmd_Next->isEnabled() ? " >" : "");
    }
    /// Chooses a tank with the keyboard.
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
    const auto pageAfter = [](QPushButton *button) {
        mouse::click(button);
        return page();
    };
    // A test of another tank on the day of the last row, an hour later, comes along on the next page.
    const QString first = "5/1 No3: 1 - 5/20 No3: 20", second = "5/20 No3: 20 - 6/8 No3: 39";
    addTests(20, "p1", "10:00:00");
    addTests(50); // after the first page 31 are left, which make two pages, so the last ones are not reached
    const auto &window = openGraph();
    EXPECT_EQ(page(), first + " >");
    EXPECT_EQ(pageAfter(window.cmd_Next), second + " <");
    EXPECT_EQ(pageAfter(window.cmd_Previous), first + " >");
    execute("DELETE FROM WATERLOG WHERE tankname = 'r1'");
    addTests(90);
    choose("Same"); // and back to the first page
    choose("Reef");
    EXPECT_EQ(pageAfter(window.cmd_Next), second + " < >");
    EXPECT_EQ(pageAfter(window.cmd_Next), "6/9 No3: 40 - 6/28 No3: 59 <");
    EXPECT_EQ(pageAfter(window.cmd_Previous), first + " < >") << "the first entries, as the second page of the 58";
}

TEST_F(Graph, TheOptionsSayWhatIsDrawn)
{
    addTests(2);
    execute("INSERT INTO WATERLOG (tankname, logdate, logtime) VALUES ('r1', '2026-05-02', '21:00:00')");
    auto &window = openGraph();
    EXPECT_EQ(window.Chart1->RowCount(), 3) << "two of one day";
    EXPECT_EQ(cell(3, 3), "(blank)") << "a field without a value";
    OptionsMembers &options = keeper.g().options;
    options.GraphSkipZeroes = 1;
    options.GraphChecks = "0101000000010";
    window.GraphChart();
    EXPECT_EQ(cell(1, 1) + '|' + cell(1, 2) + '|' + cell(1, 3), "(blank)|5/1 No3: 1|5/1 User Field 1: 1.5");
    options.GraphChecks = "0000000000000";
    window.GraphChart();
    EXPECT_TRUE(keeper.told().startsWith("0|Note!/64/Nothing is selected to graph!"));
    EXPECT_EQ(cell(1, 3), "5/1 User Field 1: 1.5") << "the chart stands";
}

TEST_F(Graph, DrawsTheTankInHandAndTellsWhereThereIsNoGraph)
{
    const auto go = [this] {
        hand::openLogbook(*main);
        hand::press(Qt::Key_G, Qt::ControlModifier);
        return graph().tanklistbox->currentText();
    };
    const QString notEnough = "0|Not Enough Entries To Create A Graph!/48/", drawn = "5/1 No3: 1 - 5/3 No3: 3";
    addTests(1);
    addTests(3, "k1"); // "Marsh" is second in the list
    hand::clickTank(*logbook, "All Tanks");
    EXPECT_EQ(go(), "Marsh") << "the first that has a graph";
    EXPECT_EQ(page(), drawn);
    hand::openLogbook(*main);
    hand::clickTank(*logbook, "Reef");
    EXPECT_EQ(go(), "Reef");
    EXPECT_TRUE(keeper.told().startsWith(notEnough));
    EXPECT_EQ(page(), drawn) << "the chart stands";
    choose("Marsh");
    EXPECT_EQ(keeper.g().gTankId, "k1");
    hand::openLogbook(*main);
    EXPECT_EQ(keeper.g().gTankId, "r1") << "the logbook's";
    execute("DELETE FROM TANKLST");
    go();
    EXPECT_TRUE(keeper.told().contains("/You have no tanks"));
    EXPECT_EQ(page(), "none");
    EXPECT_EQ(graph().Chart1->accessibleName(), graph().windowTitle());
}

TEST_F(Graph, PrintsALandscapePageForEachCopyUnderTheNameOfTheTankDrawn)
{
    addTests(4);
    const auto &frame = static_cast<QMdiSubWindow &>(*openGraph().parentWidget());
    choose("Pond"); // it has no graph, so the chart does not change
    keeper.told();
    for (const auto &[maximize, copies] :
         {std::pair(MsgBoxAnswer::Cancel, 0), {MsgBoxAnswer::No, 2}, {MsgBoxAnswer::Yes, 1}}) {
        keeper.doors.answers = {maximize};
        keeper.doors.printers = {PrintDialogAnswer{copies}};
        hand::choose(*main, *main->mnu_File, "mnu_FilePrint");
        EXPECT_TRUE(keeper.told().startsWith("0|Maximize Window?/67/"));
        EXPECT_EQ(frame.isMaximized(), maximize == MsgBoxAnswer::Yes);
        EXPECT_EQ(keeper.doors.documents.size(), size_t(copies));
        for (const PrintedDocument &document : std::exchange(keeper.doors.documents, {})) {
            ASSERT_TRUE(document.landscape && document.ended && document.pages.size() == 1u);
            EXPECT_EQ(document.pages[0].pictures, std::vector{QRectF(0, 80, 1000, 720)});
        }
    }
    EXPECT_EQ(graph().Chart1->TitleText(), "Ostrelmark Graph for Tank: Reef");
}
