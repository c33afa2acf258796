#include <QComboBox>
#include <QMdiSubWindow>

#include "Desk.h"
#include "graph/frm_WaterGraph.h"
#include "logbook/frm_WaterAddEdit.h"
#include "platform/chart/Chart.h"
#include "shell/frm_OMKOptions.h"

namespace {

const QString notEnough = "Not Enough Entries To Create A Graph!: Remember, you need to have at least 2 water quality";
const QString noTanks = "No Tanks Set Up Yet: You have no tanks set up in Ostrelmark.";
const QString noEntries = "No Tanks Set Up Yet: You have no log entries set up in Ostrelmark.";

} // namespace

/// The tank "Reef" is in hand in the logbook.
class Graph : public Desk<frm_WaterAddEdit>
{
protected:
    Graph() : Desk(WaterTab) {}

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
        hand::click<QToolButton>(*logbook, "graphentries");
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
        QComboBox &list = *graph().tanklistbox;
        list.setFocus();
        hand::press(Qt::Key_Home);
        while (list.currentText() != tank && list.currentIndex() + 1 < list.count())
            hand::press(Qt::Key_Down);
    }
};

TEST_F(Graph, PagesAreAsLongAsTheTestsThatAreLeft)
{
    const struct
    {
        int tests;
        std::vector<const char *> pages; ///< the first, by "Next" as often, and the last by "Previous"
    } rows[] = {
        {22, {"5/1 No3: 1 - 5/20 No3: 20 >", "5/21 No3: 21 - 5/22 No3: 22 <", "5/1 No3: 1 - 5/20 No3: 20 >"}},
        // Thirty are left, which are two pages, and this is the second: the last ten are not reached.
        {50, {"5/1 No3: 1 - 5/20 No3: 20 >", "5/21 No3: 21 - 6/9 No3: 40 <", "5/1 No3: 1 - 5/20 No3: 20 >"}},
        // Back from the third page are the first entries, and yet it is the second page of the 59 before.
        {90,
         {"5/1 No3: 1 - 5/20 No3: 20 >", "5/21 No3: 21 - 6/9 No3: 40 < >", "6/10 No3: 41 - 6/29 No3: 60 <",
          "5/1 No3: 1 - 5/20 No3: 20 < >"}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.tests);
        execute("DELETE FROM WATERLOG");
        addTests(row.tests);
        hand::openLogbook(*main);
        openGraph();
        choose("Same"); // and back: the first page
        choose("Reef");
        told(0);
        for (size_t i = 0; i < row.pages.size(); ++i) {
            if (i > 0)
                mouse::click(i + 1 < row.pages.size() ? graph().cmd_Next : graph().cmd_Previous);
            EXPECT_EQ(page(), row.pages[i]);
        }
        EXPECT_EQ(told(0), "");
    }
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
    addTests(1);
    addTests(3, "b1");
    openGraph();
    EXPECT_TRUE(told(0).startsWith(notEnough));
    EXPECT_EQ(page(), "none");
    choose("Bowl");
    told(0);
    EXPECT_EQ(page(), "5/1 No3: 1 - 5/3 No3: 3");
    choose("Pond");
    EXPECT_TRUE(told(0).contains(notEnough));
    EXPECT_EQ(page(), "5/1 No3: 1 - 5/3 No3: 3");
    EXPECT_EQ(keeper.g().gTankId, "p1");
}

TEST_F(Graph, TheOptionsSayWhatIsDrawnAndTheRightButtonOpensThem)
{
    addTests(2);
    execute("INSERT INTO WATERLOG (tankname, logdate, logtime) VALUES ('r1', '2026-05-02', '21:00:00')");
    auto &window = openGraph();
    EXPECT_EQ(cell(1, 1) + '|' + cell(1, 2) + '|' + cell(1, 3), "5/1 Nh3: 0|5/1 No2: 0.05|5/1 No3: 1");
    EXPECT_EQ(cell(3, 3), "(blank)") << "a field without a value";
    EXPECT_EQ(window.Chart1->RowCount(), 3) << "two of one day";
    keeper.inNext<frm_OMKOptions>([](frm_OMKOptions &w) {
        w.chk_SkipZeroValues->setChecked(true);
        w.chk_nitrite->setChecked(false);
        w.chk_User1->setChecked(true);
        w.txt_username1->setText("Iodine");
        w.cbo_GraphType->setCurrentIndex(w.cbo_GraphType->findData(14));
        mouse::click(w.cmdOK);
    });
    mouse::click(window.Chart1, QPoint(3, 3), Qt::RightButton);
    ASSERT_TRUE(main->mnu_GraphPopup->isVisible());
    clickEntry(*main->mnu_GraphPopup, "mnu_GraphOptions");
    QCoreApplication::processEvents();
    EXPECT_EQ(window.Chart1->chartType(), 14);
    EXPECT_EQ(cell(1, 1) + '|' + cell(1, 2) + '|' + cell(1, 3), "(blank)|5/1 No3: 1|5/1 Iodine: 1.5");
    EXPECT_EQ(told(0), "");
    keeper.g().options.GraphChecks = "0000000000000";
    window.GraphChart();
    EXPECT_TRUE(told(0).startsWith("64 Note!: Nothing is selected to graph!"));
    EXPECT_EQ(cell(1, 3), "5/1 Iodine: 1.5") << "the chart stands";
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
    EXPECT_FALSE(logbook->button("graphentries").isEnabled());
    told(0);
    hand::click<QToolButton>(*main, "graphing");
    EXPECT_EQ(window.tanklistbox->currentText(), "Bowl") << "the first";
    EXPECT_EQ(page(), "5/1 No3: 1 - 5/3 No3: 3");
    keeper.g().gTankName = "Gone"; // since the window was loaded
    window.GraphChart();
    EXPECT_TRUE(told(0).startsWith(noEntries));
    execute("DELETE FROM TANKLST");
    window.close();
    hand::press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(told(0).startsWith(noTanks));
}

TEST_F(Graph, PrintsALandscapePageForEachCopy)
{
    addTests(4);
    auto &frame = static_cast<QMdiSubWindow &>(*openGraph().parentWidget());
    const struct
    {
        MsgBoxAnswer answer; ///< whether the window shall be maximized for it
        int copies;          ///< 0: the print dialog is cancelled
        bool dialog, maximized;
    } rows[] = {{MsgBoxAnswer::Cancel, 0, false, false},
                {MsgBoxAnswer::No, 2, true, false},
                {MsgBoxAnswer::Yes, 0, true, true}};
    for (const auto &row : rows) {
        keeper.doors.answers = {row.answer};
        keeper.doors.printers = {std::nullopt};
        if (row.copies > 0)
            keeper.doors.printers = {PrintDialogAnswer{row.copies, 0, 0, "Laser", {}}};
        hand::choose(*main, *main->mnu_File, "mnu_FilePrint");
        EXPECT_TRUE(told(0).startsWith("67 Maximize Window?: "));
        EXPECT_EQ(frame.isMaximized(), row.maximized);
        EXPECT_EQ(std::exchange(keeper.doors.printDialogs, {}).size(), row.dialog ? 1u : 0u);
        EXPECT_EQ(keeper.doors.documents.size(), size_t(row.copies));
        for (const PrintedDocument &document : std::exchange(keeper.doors.documents, {})) {
            ASSERT_TRUE(document.landscape && document.ended && document.pages.size() == 1u);
            EXPECT_EQ(document.pages[0].pictures, std::vector{QRectF(0, 80, 1000, 720)});
        }
    }
}
