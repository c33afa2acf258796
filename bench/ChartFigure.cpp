// The figures of the graph: drawing a page of tests beside QCustomPlot alone, and opening it on a long log beside plain
// SQL.
#include "Figure.h"

#include <array>
#include <memory>
#include <stdexcept>

#include <qcustomplot.h>
#include <sqlite3.h>

#include "Desk.h"
#include "OwnProcess.h"
#include "platform/chart/Chart.h"
#include "windows/graph/frm_WaterGraph.h"
#include "windows/shell/frm_OMKMDIMain.h"

namespace {

constexpr int rows = 20;
constexpr int bars = 1;      // the chart type of bars
constexpr int lineBands = 8; // the axes that our chart gives to lines of such different values, and so does the floor
const QSize pictureSize(1000, 700);

/// Values as large as those of a marine tank.
double cell(int row, int column)
{
    constexpr std::array<double, 13> sizes = {8.2, 0.8, 0.6, 10, 1.023, 78, 7, 9, 410, 0.1, 350, 3, 12};
    return sizes[size_t(column)] * (1 + 0.1 * ((row * 7 + column * 3) % 10) / 10);
}

QString rowLabel(int row) { return QStringLiteral("4/%1").arg(row + 1); }

/// Processes all pending events before the picture is taken, so that postponed work counts too.
QPixmap finish(QWidget &widget)
{
    QCoreApplication::processEvents();
    return widget.grab();
}

Sample drawOurs(Chart &chart, int type)
{
    const std::int64_t start = nowNanoseconds();
    chart.setRowCount(0);
    chart.setColumnCount(13);
    chart.setRowCount(rows);
    chart.setChartType(type);
    for (int row = 0; row < rows; ++row) {
        chart.setRow(row + 1);
        chart.setRowLabel(rowLabel(row));
        for (int column = 0; column < 13; ++column) {
            chart.setColumn(column + 1);
            chart.setColumnLabel(QStringLiteral("Column %1").arg(column));
            chart.setData(QString::number(cell(row, column)));
        }
    }
    finish(chart);
    return {millisecondsSince(start)};
}

/// Draws bars side by side, or lines with a marker at each value, in QCustomPlot's own way.
Sample drawFloor(QCustomPlot &plot, int type)
{
    const std::int64_t start = nowNanoseconds();
    plot.clearPlottables();
    plot.legend->setVisible(true);
    const QSharedPointer<QCPAxisTickerText> ticks(new QCPAxisTickerText);
    for (int row = 0; row < rows; ++row)
        ticks->addTick(row, rowLabel(row));
    for (QCPAxisRect *rect : plot.axisRects())
        rect->axis(QCPAxis::atBottom)->setTicker(ticks);
    auto *group = type == bars ? new QCPBarsGroup(&plot) : nullptr;
    for (int column = 0; column < 13; ++column) {
        QVector<double> keys, values;
        for (int row = 0; row < rows; ++row) {
            keys << row;
            values << cell(row, column);
        }
        const QColor colour = QColor::fromHsv(column * 27, 200, 200);
        QCPAbstractPlottable *drawn;
        if (type == bars) {
            auto *one = new QCPBars(plot.xAxis, plot.yAxis);
            one->setData(keys, values, true);
            one->setBarsGroup(group);
            one->setWidth(0.06);
            one->setBrush(colour);
            drawn = one;
        } else {
            const QCPAxisRect *band = plot.axisRect(column % lineBands);
            QCPGraph *one = plot.addGraph(band->axis(QCPAxis::atBottom), band->axis(QCPAxis::atLeft));
            one->setData(keys, values, true);
            one->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, 6));
            drawn = one;
        }
        drawn->setPen(QPen(colour));
        drawn->setName(QStringLiteral("Column %1").arg(column));
    }
    plot.rescaleAxes();
    plot.replot(QCustomPlot::rpQueuedRefresh);
    finish(plot);
    if (group)
        delete group;
    return {millisecondsSince(start)};
}

/// Counts the tests of a tank and reads their first page, with a statement prepared for each.
class BarePage
{
public:
    BarePage(const QString &file, const QString &tankId) : m_tank(tankId.toUtf8())
    {
        if (sqlite3_open(file.toUtf8().constData(), &m_database) != SQLITE_OK)
            throw std::runtime_error("no database");
    }
    BarePage(const BarePage &) = delete;
    BarePage &operator=(const BarePage &) = delete;
    ~BarePage() { sqlite3_close(m_database); }

    Sample operator()()
    {
        const std::int64_t start = nowNanoseconds();
        const double count = sum("SELECT count(*) FROM waterlog WHERE tankname = ?");
        const double page = sum("SELECT * FROM waterlog WHERE tankname = ? ORDER BY logdate, logtime LIMIT 20");
        const double milliseconds = millisecondsSince(start);
        if (count < rows || page == 0)
            throw std::runtime_error("no tests");
        return {milliseconds};
    }

private:
    /// The sum of all numbers in the result, so that each of them is read.
    double sum(const char *sql)
    {
        sqlite3_stmt *statement = nullptr;
        if (sqlite3_prepare_v2(m_database, sql, -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_database));
        sqlite3_bind_text(statement, 1, m_tank.constData(), int(m_tank.size()), SQLITE_STATIC);
        double all = 0;
        while (sqlite3_step(statement) == SQLITE_ROW)
            for (int column = 0; column < sqlite3_column_count(statement); ++column)
                all += sqlite3_column_double(statement, column);
        sqlite3_finalize(statement);
        return all;
    }

    sqlite3 *m_database = nullptr;
    QByteArray m_tank;
};

void closeGraph()
{
    Form<frm_WaterGraph>().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

Figure chartFigure(const QString &name, int type)
{
    const auto chart = std::make_shared<Chart>();
    const auto plot = std::make_shared<QCustomPlot>();
    for (QWidget *widget : {static_cast<QWidget *>(chart.get()), static_cast<QWidget *>(plot.get())})
        widget->resize(pictureSize);
    for (int band = 1; type != bars && band < lineBands; ++band)
        plot->plotLayout()->addElement(band, 0, new QCPAxisRect(plot.get()));
    return {.name = name,
            .target = 1.2,
            .ours = [chart, type] { return drawOurs(*chart, type); },
            .floor = [plot, type] { return drawFloor(*plot, type); },
            .repetitions = 41};
}

} // namespace

Figure barChartFigure() { return chartFigure(QStringLiteral("A chart of 13 times 20 bars, ms"), bars); }

Figure lineChartFigure() { return chartFigure(QStringLiteral("A chart of 13 lines of 20, ms"), 3); }

Figure openGraphFigure(const QString &databaseFile, const QString &tankId)
{
    const auto bare = std::make_shared<BarePage>(databaseFile, tankId);
    return {.name = QStringLiteral("Graph of a tank with 100,000 tests, ms"),
            .target = 3,
            .ours =
                [] {
                    const std::int64_t start = nowNanoseconds();
                    Form<frm_OMKMDIMain>().mnu_ToolsGraphing_Click();
                    PaintWatch watch(Form<frm_WaterGraph>().Chart1->findChild<QCustomPlot *>());
                    watch.wait();
                    const Sample sample{millisecondsSince(start)};
                    closeGraph(); // otherwise it would cover the lists that other figures paint
                    return sample;
                },
            .floor = [bare] { return (*bare)(); },
            .repetitions = 25};
}
