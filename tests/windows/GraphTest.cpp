#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QMdiSubWindow>

#include "Desk.h"
#include "graph/frm_WaterGraph.h"
#include "logbook/frm_WaterAddEdit.h"
#include "platform/chart/Chart.h"
#include "shell/frm_OMKOptions.h"

namespace {

const QString notEnough =
    "Not Enough Entries To Create A Graph!: Remember, you need to have at least 2 water quality log entries for a "
    "tank in order to create a graph. Select another tank or add more water quality entries.";
const QString noTanks =
    "No Tanks Set Up Yet: You have no tanks set up in Ostrelmark. You must set-up at least one tank and enter at "
    "least 2 log entries into it before you can graph the results. Set up a tank by choosing \"Tools\", \"Set Up "
    "Tanks\" on the menu.";
const QString noEntries = "No Tanks Set Up Yet: You have no log entries set up in Ostrelmark. You must enter at "
                          "least 2 water quality log entries into it before you can graph the results.";
const QString nothingSelected = "64 Note!: Nothing is selected to graph! Select the measurements you'd like to graph "
                                "by checking the appropriate boxes.";

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
    void pushNext() { mouse::click(graph().cmd_Next); }
    void pushPrevious() { mouse::click(graph().cmd_Previous); }
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
        const char *first; ///< page
        const char *next, *afterThat, *back;
        bool endsInBox = false;
    } rows[] = {
        {20, "5/1 No3: 1 - 5/20 No3: 20", nullptr, nullptr, nullptr},
        {21, "5/1 No3: 1 - 5/20 No3: 20 >", "5/1 No3: 1 - 5/20 No3: 20", nullptr, nullptr, true},
        {22, "5/1 No3: 1 - 5/20 No3: 20 >", "5/21 No3: 21 - 5/22 No3: 22 <", nullptr, "5/1 No3: 1 - 5/20 No3: 20 >"},
        // Thirty are left, which are two pages, and this is the second: the last ten are not reached.
        {50, "5/1 No3: 1 - 5/20 No3: 20 >", "5/21 No3: 21 - 6/9 No3: 40 <", nullptr, "5/1 No3: 1 - 5/20 No3: 20 >"},
        // Back from the third page are the first entries, and yet it is the second page of the 59 before.
        {90, "5/1 No3: 1 - 5/20 No3: 20 >", "5/21 No3: 21 - 6/9 No3: 40 < >", "6/10 No3: 41 - 6/29 No3: 60 <",
         "5/1 No3: 1 - 5/20 No3: 20 < >"},
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
        EXPECT_EQ(page(), row.first);
        if (row.next) {
            pushNext();
            EXPECT_EQ(page(), row.next);
        }
        if (row.afterThat) {
            pushNext();
            EXPECT_EQ(page(), row.afterThat);
        }
        if (row.back) {
            pushPrevious();
            EXPECT_EQ(page(), row.back);
        }
        EXPECT_EQ(told(0), row.endsInBox ? notEnough : QString());
    }
}

TEST_F(Graph, RowsOfAnotherTankOnTheDayOfTheLastRowComeAlong)
{
    addTests(25);
    addTests(22, "p1", "10:00:00");
    openGraph();
    pushNext();
    EXPECT_EQ(cell(1, 3), "5/20 No3: 20") << "the pond's, an hour later";
    EXPECT_EQ(cell(2, 3), "5/21 No3: 21");
    EXPECT_EQ(graph().Chart1->RowCount(), 6);
}

TEST_F(Graph, FewerThanTwoTestsMakeNoGraphAndTheChartStands)
{
    addTests(1);
    addTests(3, "b1");
    openGraph();
    EXPECT_EQ(told(0), notEnough);
    EXPECT_EQ(page(), "none");
    EXPECT_TRUE(graph().isAncestorOf(QApplication::focusWidget()));
    choose("Bowl");
    told(0);
    EXPECT_EQ(page(), "5/1 No3: 1 - 5/3 No3: 3");
    choose("Pond");
    EXPECT_EQ(told(0).right(notEnough.size()), notEnough);
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
    const auto options = [&](const std::function<void(frm_OMKOptions &)> &action, QWidget &place) {
        keeper.inNext<frm_OMKOptions>([&](frm_OMKOptions &w) {
            EXPECT_EQ(w.SSTab1->currentIndex(), 1);
            action(w);
            mouse::click(w.cmdOK);
        });
        mouse::click(&place, QPoint(3, 3), Qt::RightButton);
        ASSERT_TRUE(main->mnu_GraphPopup->isVisible());
        clickEntry(*main->mnu_GraphPopup, "mnu_GraphOptions");
        QCoreApplication::processEvents();
        EXPECT_TRUE(isInFront(*main));
    };
    options(
        [](frm_OMKOptions &w) {
            w.chk_SkipZeroValues->setChecked(true);
            w.chk_nitrite->setChecked(false);
            w.chk_User1->setChecked(true);
            w.txt_username1->setText("Iodine");
            w.cbo_GraphType->setCurrentIndex(w.cbo_GraphType->findData(14));
        },
        *window.Chart1);
    EXPECT_EQ(window.Chart1->chartType(), 14);
    EXPECT_EQ(cell(1, 1) + '|' + cell(1, 2) + '|' + cell(1, 3), "(blank)|5/1 No3: 1|5/1 Iodine: 1.5");
    EXPECT_EQ(told(0), "");
    options(
        [](frm_OMKOptions &w) {
            for (QCheckBox *box : {w.chk_ammonia, w.chk_nitrate, w.chk_User1})
                box->setChecked(false);
        },
        window);
    EXPECT_EQ(told(0), nothingSelected);
    EXPECT_EQ(cell(1, 3), "5/1 Iodine: 1.5") << "the chart stands";
    keeper.g().options.GraphChecks = "1000000000001";
    keeper.g().gUserFieldName2 = "Iron";
    keeper.g().options.GraphStyle = 1;
    window.GraphChart();
    EXPECT_EQ(cell(2, 1) + '|' + cell(2, 2), "5/2 ph: 8.25|5/2 Iron: 2.5");
}

TEST_F(Graph, BothWaysIntoItDrawTheTankInHand)
{
    addTests(2);
    addTests(3, "b1");
    auto &window = openGraph();
    EXPECT_EQ(window.tanklistbox->currentText(), "Reef");
    EXPECT_EQ(main->mnu_FilePrint->text(), "&Print");
    EXPECT_TRUE(main->mnu_FilePrint->isEnabled());
    choose("Bowl");
    EXPECT_EQ(keeper.g().gTankId, "b1");
    hand::openLogbook(*main);
    EXPECT_EQ(keeper.g().gTankId, "r1") << "an entry is for the tank that the logbook shows";
    hand::press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(window.tanklistbox->currentText(), "Reef");
    EXPECT_TRUE(window.isAncestorOf(QApplication::focusWidget()));
    hand::openLogbook(*main);
    hand::clickTank(*logbook, "All Tanks");
    EXPECT_FALSE(logbook->button("graphentries").isEnabled());
    told(0);
    hand::click<QToolButton>(*main, "graphing");
    EXPECT_EQ(window.tanklistbox->currentText(), "Bowl") << "the first";
    EXPECT_EQ(page(), "5/1 No3: 1 - 5/3 No3: 3");
    keeper.addTank("Aqua", "a1"); // since the window was loaded
    keeper.g().gTankName = "Aqua";
    window.GraphChart();
    EXPECT_EQ(window.tanklistbox->currentText(), "Aqua");
    EXPECT_EQ(told(0), notEnough);
    keeper.g().gTankName = "Gone";
    window.GraphChart();
    EXPECT_EQ(told(0), noEntries);
    execute("DELETE FROM TANKLST");
    window.close();
    hand::press(Qt::Key_G, Qt::ControlModifier);
    EXPECT_EQ(told(0), noTanks);
}

TEST_F(Graph, PrintsALandscapePageForEachCopy)
{
    addTests(4);
    auto &window = openGraph();
    auto &frame = static_cast<QMdiSubWindow &>(*window.parentWidget());
    const QString question = "67 Maximize Window?: For best print quality, it is recommended that this window be "
                             "maximized as large as possible. Do you want Ostrelmark to maximize this form for you?";
    const struct
    {
        std::optional<MsgBoxAnswer> answer; ///< none: no question
        int copies;                         ///< 0: the print dialog is cancelled
        bool maximized;
    } rows[] = {
        {MsgBoxAnswer::Cancel, 1, false}, {MsgBoxAnswer::No, 2, false}, {MsgBoxAnswer::Yes, 0, true}, {{}, 1, true}};
    for (const auto &row : rows) {
        if (row.answer)
            keeper.doors.answers = {*row.answer};
        if (row.copies > 0)
            keeper.doors.printers = {PrintDialogAnswer{row.copies, 0, 0, "Laser", {}}};
        QGuiApplication::clipboard()->clear();
        hand::choose(*main, *main->mnu_File, "mnu_FilePrint");
        EXPECT_EQ(told(0), row.answer ? question : QString());
        EXPECT_EQ(frame.isMaximized(), row.maximized);
        const bool asked = row.answer != MsgBoxAnswer::Cancel;
        EXPECT_EQ(keeper.doors.printDialogs.size(), asked ? 1u : 0u);
        EXPECT_EQ(keeper.doors.documents.size(), asked ? size_t(row.copies) : 0u);
        EXPECT_EQ(QGuiApplication::clipboard()->image().isNull(), keeper.doors.documents.empty());
        EXPECT_EQ(window.Chart1->TitleText(), asked ? "Ostrelmark Graph for Tank: Reef" : "");
        for (const auto &dialog : std::exchange(keeper.doors.printDialogs, {}))
            EXPECT_TRUE(dialog.title == "Print Water Quality Graph" && dialog.landscape);
        for (const PrintedDocument &document : std::exchange(keeper.doors.documents, {})) {
            ASSERT_TRUE(document.landscape && document.ended && document.pages.size() == 1u);
            const PrintedPage &page = document.pages[0];
            EXPECT_EQ(page.pictures, std::vector{QRectF(0, 80, 1000, 720)});
            EXPECT_TRUE(page.texts.back().text.startsWith("(c) 2026 "));
            EXPECT_LE(page.texts.back().bottom, 800);
        }
        keeper.doors.printers.clear();
    }
}
