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

constexpr char lessThan1000[] = "entries must be less than 1000.";

struct Expected
{
    const char *column, *typed; ///< the column of WATERLOG
    const char *listed;         ///< the heading of the list and the cell below it
    const char *head, *printed; ///< of the printed log
    const char *drawn;          ///< the cell of the graph
    double limit;
    const char *name, *tooLarge; ///< the message for a value beyond the limit
};

// In the order of the table in the program.
constexpr Expected expected[] = {
    {"Ammonia", "0.111", "Nh3 - Ammonia: 0.111", "Ammonia", "0.111", "Nh3: 0.111", 999, "Ammonia", lessThan1000},
    {"nitrite", "0.222", "No2 - Nitrite: 0.222", "Nitrite", "0.222", "No2: 0.222", 999, "Nitrite", lessThan1000},
    {"nitrate", "3.333", "No3 - Nitrate: 3.333", "Nitrate", "3.333", "No3: 3.333", 999, "Nitrate", lessThan1000},
    {"ph", "8.45", "ph: 8.45", "ph", "8.450", "ph: 8.45", 99, "Ph", "entries must be less than 99."},
    {"sg", "1.026", "S.G. - Specific Gravity: 1.026", "s.g.", "1.026", "S.G.: 1.026", 9.999, "Specific Gravity",
     "entries must be less than 10."},
    {"temp", "77.5", "Temperature: 77.50", "Temp", "77.500", "temp: 77.5", 999, "Temperature",
     "entries must be less than 999."},
    {"oxygen", "6.7", "o2 - Oxygen: 6.700", "o2", "6.700", "o2: 6.7", 999, "Oxygen", lessThan1000},
    {"dkh", "9.8", "dKh: 9.800", "dkh", "9.800", "dkh: 9.8", 999, "dkh", lessThan1000},
    {"calcium", "421", "Calcium: 421.000", "Calcium", "421.000", "calcium: 421", 999, "Calcium", lessThan1000},
    {"copper", "0.055", "Cu - Copper: 0.055", "Copper", "0.055", "cu: 0.055", 999, "Copper",
     "entries must less than 1000."},
    {"orp", "351", "Orp : 351.000", "Redox", "351.000", "Redox: 351", 999, "Orp", lessThan1000},
    {"custom1", "12.5", "Custom1: 12.5", "Custom1", "12.500", "Iodine: 12.5", 999, "Iodine", lessThan1000},
    // The list shows the first user-defined measurement in both columns of the user-defined ones.
    {"custom2", "13.5", "Custom2: 12.5", "Custom2", "13.500", "Iron: 13.5", 999, "Iron", lessThan1000},
};
static_assert(std::size(expected) == measurementCount);

const MeasurementRow &inProgram(const Expected &row) { return measurements[size_t(&row - expected)]; }

} // namespace

class Measurements : public Desk
{
protected:
    Measurements()
    {
        execute("UPDATE CONFIG SET user_fieldname1 = 'Iodine', user_fieldname2 = 'Iron'");
        startWith("MMDDYY", "/");
    }
    void addTest()
    {
        give<frm_WaterAddEdit>("addentries", 0, [](frm_WaterAddEdit &w) {
            for (const Expected &row : expected)
                hand::type(control<QWidget>(w, inProgram(row).entry.box), row.typed);
            mouse::click(w.cmd_OK);
        });
    }
};

TEST_F(Measurements, EachIsStoredShownListedAndPrintedInItsOwnPlace)
{
    addTest();
    give<frm_WaterAddEdit>("changeentries", 1, [](frm_WaterAddEdit &w) {
        for (const Expected &row : expected)
            EXPECT_EQ(shown(w, {inProgram(row).entry.box}).toDouble(), QString(row.typed).toDouble()) << row.column;
        hand::press(Qt::Key_Escape);
    });
    keeper.doors.printers = {PrintDialogAnswer{1}};
    RunReport(MakeLogReport(WaterTab, *keeper.g().gDatabase, "MM/DD/YY", QString("r1")), PrintTarget::Printer,
              [](const QString &) {});
    const PrintedPage &page = keeper.doors.documents.at(0).pages.at(0);
    QStringList cells;
    for (int i = 0; i < list().columnCount(); ++i)
        cells << list().model()->headerData(i, Qt::Horizontal).toString() + ": " + list().Text(1, i);
    for (const Expected &row : expected) {
        SCOPED_TRACE(row.column);
        EXPECT_EQ(keeper.stored(QString("%1 AS x FROM WATERLOG").arg(row.column)), row.typed);
        EXPECT_TRUE(cells.contains(row.listed)) << cells.join(", ").toStdString();
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
    Chart &chart = *Form<frm_WaterGraph>().Chart1;
    for (const Expected &row : expected) {
        keeper.inNext<frm_OMKOptions>([&row](frm_OMKOptions &w) {
            for (const Expected &any : expected)
                control<QCheckBox>(w, inProgram(any).graph.check).setChecked(&any == &row);
            mouse::click(w.cmdOK);
        });
        mouse::click(&chart, QPoint(3, 3), Qt::RightButton);
        clickEntry(*main->mnu_GraphPopup, "mnu_GraphOptions");
        EXPECT_EQ(chart.ColumnCount(), 1);
        EXPECT_EQ(chart.tip(chart.place(1, 1).center()), QString("3/14\n") + row.drawn);
    }
}

TEST_F(Measurements, EachIsRefusedJustBeyondItsLimit)
{
    give<frm_WaterAddEdit>("addentries", 0, [this](frm_WaterAddEdit &w) {
        for (const Expected &row : expected) {
            const QString tooLarge = QString("1|Oops!/48/%1 %2").arg(row.name, row.tooLarge);
            for (const auto &[value, told] : {std::pair(row.limit + 0.001, tooLarge), {row.limit, "0"}}) {
                hand::type(control<QWidget>(w, inProgram(row).entry.box), QString::number(value));
                mouse::click(w.txt_Comment);
                EXPECT_EQ(keeper.told(), told) << row.column;
            }
        }
        hand::type(*w.txt_date, "03/x");
        EXPECT_TRUE(keeper.told().startsWith("1|Oops!/48/You must enter a valad date")) << "at the key";
        hand::press(Qt::Key_Escape);
    });
}
