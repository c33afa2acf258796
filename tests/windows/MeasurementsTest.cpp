// Follows each measurement through the program: typed in the entry window, read in the list, printed, drawn, and chosen
// in the options. The expected texts are written out here again, so that two exchanged columns or a wrong limit are
// noticed.
#include "Desk.h"
#include "logic/logbook/LogReports.h"
#include "platform/chart/Chart.h"
#include "windows/graph/frm_WaterGraph.h"
#include "windows/logbook/frm_WaterAddEdit.h"
#include "windows/shell/frm_OMKOptions.h"

namespace {

struct Expected
{
    const char *column;
    const char *box, *typed;
    const char *heading, *listed;
    const char *head, *printed;
    const char *check, *drawn; ///< the check box and the cell of the graph
    const char *limit, *beyond, *tooLarge;
};

constexpr Expected expected[] = {
    {"Ammonia", "txt_ammonia", "0.111", "Nh3 - Ammonia", "0.111", "Ammonia", "0.111", "chk_ammonia", "Nh3: 0.111",
     "999", "999.01", "Ammonia entries must be less than 1000."},
    {"nitrite", "txt_nitrite", "0.222", "No2 - Nitrite", "0.222", "Nitrite", "0.222", "chk_nitrite", "No2: 0.222",
     "999", "999.01", "Nitrite entries must be less than 1000."},
    {"nitrate", "txt_nitrate", "3.333", "No3 - Nitrate", "3.333", "Nitrate", "3.333", "chk_nitrate", "No3: 3.333",
     "999", "999.01", "Nitrate entries must be less than 1000."},
    {"ph", "txt_ph", "8.45", "ph", "8.45", "ph", "8.450", "chk_ph", "ph: 8.45", "99", "99.01",
     "Ph entries must be less than 99."},
    {"sg", "txt_sg", "1.026", "S.G. - Specific Gravity", "1.026", "s.g.", "1.026", "chk_sg", "S.G.: 1.026", "9.999",
     "10", "Specific Gravity entries must be less than 10."},
    {"temp", "txt_temp", "77.5", "Temperature", "77.50", "Temp", "77.500", "chk_temp", "temp: 77.5", "999", "999.01",
     "Temperature entries must be less than 999."},
    {"oxygen", "txt_oxygen", "6.7", "o2 - Oxygen", "6.700", "o2", "6.700", "chk_o2", "o2: 6.7", "999", "999.01",
     "Oxygen entries must be less than 1000."},
    {"dkh", "txt_dkh", "9.8", "dKh", "9.800", "dkh", "9.800", "chk_dkh", "dkh: 9.8", "999", "999.01",
     "dkh entries must be less than 1000."},
    {"calcium", "txt_calcium", "421", "Calcium", "421.000", "Calcium", "421.000", "chk_calcium", "calcium: 421", "999",
     "999.01", "Calcium entries must be less than 1000."},
    {"copper", "txt_copper", "0.055", "Cu - Copper", "0.055", "Copper", "0.055", "chk_Copper", "cu: 0.055", "999",
     "999.01", "Copper entries must less than 1000."},
    {"orp", "txt_orp", "351", "Orp ", "351.000", "Redox", "351.000", "chk_orp", "Redox: 351", "999", "999.01",
     "Orp entries must be less than 1000."},
    {"custom1", "txt_user1", "12.5", "Custom1", "12.5", "Custom1", "12.500", "chk_User1", "Iodine: 12.5", "999",
     "999.01", "Iodine entries must be less than 1000."},
    // The list shows the first user-defined measurement in both columns of the user-defined ones.
    {"custom2", "txt_user2", "13.5", "Custom2", "12.5", "Custom2", "13.500", "chk_user2", "Iron: 13.5", "999", "999.01",
     "Iron entries must be less than 1000."},
};
static_assert(std::size(expected) == measurementCount);

} // namespace

class Measurements : public Desk
{
protected:
    Measurements()
    {
        execute("UPDATE CONFIG SET user_fieldname1 = 'Iodine', user_fieldname2 = 'Iron'");
        keeper.restart();
        open("Reef");
    }
    void addTest()
    {
        give<frm_WaterAddEdit>("addentries", 0, [](frm_WaterAddEdit &w) {
            for (const Expected &row : expected)
                hand::type(control<QWidget>(w, row.box), row.typed);
            mouse::click(w.cmd_OK);
        });
    }
};

TEST_F(Measurements, EachIsStoredShownListedAndPrintedInItsOwnPlace)
{
    addTest();
    give<frm_WaterAddEdit>("changeentries", 1, [](frm_WaterAddEdit &w) {
        for (const Expected &row : expected)
            EXPECT_EQ(shown(w, {row.box}).toDouble(), QString(row.typed).toDouble()) << row.box;
        hand::press(Qt::Key_Escape);
    });
    keeper.doors.printers = {PrintDialogAnswer{1}};
    RunReport(MakeLogReport(WaterTab, *keeper.g().gDatabase, "MM/DD/YY", QString("r1")), PrintTarget::Printer,
              [](const QString &) {});
    const PrintedPage &page = keeper.doors.documents.at(0).pages.at(0);
    QStringList headings;
    for (int i = 0; i < list().model()->columnCount(); ++i)
        headings << list().model()->headerData(i, Qt::Horizontal).toString();
    for (const Expected &row : expected) {
        SCOPED_TRACE(row.column);
        EXPECT_EQ(keeper.stored(QString("%1 AS x FROM WATERLOG").arg(row.column)), row.typed);
        const auto place = headings.indexOf(row.heading);
        EXPECT_TRUE(place >= 0 && column(int(place)) == row.listed);
        ASSERT_TRUE(page.find(row.head) && page.find(row.printed));
        EXPECT_EQ(page.find(row.printed)->x, page.find(row.head)->x);
    }
}

TEST_F(Measurements, EachIsDrawnUnderItsNameWhereItsCheckBoxIsTicked)
{
    addTest();
    keeper.doors.clock = keeper.doors.clock.addDays(1); // a graph needs two tests
    addTest();
    push("graphentries");
    const Chart &chart = *Form<frm_WaterGraph>().Chart1;
    for (const Expected &row : expected) {
        SCOPED_TRACE(row.check);
        keeper.inNext<frm_OMKOptions>([&row](frm_OMKOptions &w) {
            for (const Expected &any : expected)
                control<QCheckBox>(w, any.check).setChecked(any.check == row.check);
            mouse::click(w.cmdOK);
        });
        main->mnu_GraphOptions_Click();
        EXPECT_EQ(chart.ColumnCount(), 1);
        EXPECT_EQ(chart.tip(chart.place(1, 1).center()), QString("3/14\n") + row.drawn);
        const QString toolTip = measurements[size_t(&row - expected)].entry.toolTip,
                      &unit = chart.data().columnUnits[0];
        EXPECT_EQ(unit, toolTip.endsWith("in PPM") ? "ppm" : toolTip.contains("degrees") ? "degrees" : "");
    }
}

TEST_F(Measurements, EachIsRefusedJustBeyondItsLimit)
{
    give<frm_WaterAddEdit>("addentries", 0, [this](frm_WaterAddEdit &w) {
        for (const Expected &row : expected) {
            SCOPED_TRACE(row.column);
            auto &box = control<QWidget>(w, row.box);
            hand::type(box, row.beyond);
            mouse::click(w.txt_Comment);
            EXPECT_EQ(keeper.told(), QString("1|Oops!/48/") + row.tooLarge);
            hand::type(box, row.limit);
            mouse::click(w.txt_Comment);
            EXPECT_EQ(keeper.told(), "0");
        }
        hand::type(control<QWidget>(w, "txt_user2"), "1000x");
        mouse::click(w.txt_Comment);
        EXPECT_EQ(keeper.told().count(" entries must be "), 2) << "it is wrong twice";
        hand::type(control<QWidget>(w, "txt_user2"), "1");
        hand::type(*w.txt_date, "03/x");
        EXPECT_TRUE(keeper.told().startsWith("1|Oops!/48/You must enter a valad date")) << "at the key";
        hand::press(Qt::Key_Escape);
    });
}
