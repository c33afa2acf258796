#include <cmath>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "platform/chart/Chart.h"
#include "platform/chart/ChartLook.h"
#include "platform/chart/ChartScale.h"

namespace {

constexpr int allTypes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 16};

/// A chart on the screen. Its rows are "1/1", "1/2" and so on, its columns "A", "B" and so on; "" is a blank cell.
struct ShownChart : Chart
{
    ShownChart(int type, const std::vector<QStringList> &columns, const QSize &size = {600, 400})
    {
        setColumnCount(int(columns.size()));
        setRowCount(int(columns.front().size()));
        for (int row = 1; row <= RowCount(); ++row)
            for (int column = 1; column <= ColumnCount(); ++column) {
                setRow(row);
                setColumn(column);
                setRowLabel(QStringLiteral("1/%1").arg(row));
                setColumnLabel(QString(QChar('A' + column - 1)));
                setData(columns[size_t(column - 1)].at(row - 1));
            }
        setChartType(type);
        resize(size);
        show();
        QCoreApplication::processEvents();
    }
    QImage picture()
    {
        QCoreApplication::processEvents();
        return grab().toImage();
    }
};

/// Counts the pixels of a column's hue, however light or dark, in a vertical strip of the picture.
int painted(const QImage &image, double x, double halfWidth, int column)
{
    const QColor colour = ChartColours::onPaper().look(column).colour;
    int count = 0;
    for (int px = int(x - halfWidth); px <= int(x + halfWidth); ++px)
        for (int y = 0; y < image.height() * 4 / 5; ++y) { // above the legend
            const QColor pixel = image.pixelColor(px, y);
            count += pixel.hsvSaturation() > 60 && std::abs(pixel.hsvHue() - colour.hsvHue()) < 12;
        }
    return count;
}

} // namespace

TEST(Chart, EveryTypeDrawsEveryValueInsideTheChart)
{
    for (const int type : allTypes)
        for (const auto &[rows, columns] : {std::pair{1, 1}, {2, 13}, {20, 13}})
            for (const QSize size : {QSize(700, 500), QSize(150, 110)}) {
                SCOPED_TRACE(QStringLiteral("type %1, %2 x %3").arg(type).arg(rows).arg(columns).toStdString());
                std::vector<QStringList> cells(static_cast<size_t>(columns), QStringList(rows));
                for (int row = 0; row < rows; ++row)
                    for (int column = 0; column < columns && row + column < rows + columns - 2 + (rows == 1); ++column)
                        cells[size_t(column)][row] = QString::number(
                            (2 + std::sin(row + column)) * std::pow(10, column % 5 - 2) * (column == 7 ? -1 : 1));
                ShownChart chart(type, cells, size);
                chart.setTitleText("Ostrelmark Graph for a tank with quite a long name");
                chart.setColumnLabel(QString(99, 'W')); // of the last column
                EXPECT_GT(painted(chart.picture(), size.width() / 2.0, size.width() / 2.0 - 1, 0), 3);
                for (int row = 1; row <= rows; ++row)
                    for (int column = 1; column <= columns; ++column) {
                        const QRectF place = chart.place(row, column);
                        ASSERT_EQ(place.isNull(), cells[size_t(column - 1)][row - 1].isEmpty()) << row << ' ' << column;
                        ASSERT_TRUE(QRectF(chart.rect()).contains(place.center())) << row << ' ' << column;
                    }
            }
}

TEST(Chart, ABlankCellIsAGap)
{
    for (const int type : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 16}) { // a pie has no gaps
        SCOPED_TRACE(type);
        ShownChart whole(type, {{"8", "8", "8", "8", "8"}}), gap(type, {{"8", "8", "", "8", "8"}});
        // Looks at the third row. Bars with depth reach into the place of their neighbours on the right, so that only a
        // narrow strip right of the middle counts.
        const bool bodies = type == 0 || type == 8;
        const double x = whole.place(3, 1).center().x() + (bodies ? 10 : 0);
        const double half = bodies ? 1 : 5;
        const int without = painted(gap.picture(), x, half, 0), with = painted(whole.picture(), x, half, 0);
        EXPECT_LE(without, bodies ? with / 2 : 0);
        EXPECT_GT(with, 0);
        EXPECT_TRUE(gap.place(3, 1).isNull());
    }
    ShownChart chart(1, {{"", "abc", "1e300", "7"}});
    for (int row = 1; row <= 4; ++row)
        EXPECT_EQ(chart.place(row, 1).isNull(), row < 4) << "no number, row " << row;
}

TEST(Chart, BarsAreAsHighAsTheirValues)
{
    for (const int type : {0, 1}) {
        ShownChart chart(type, {{"10", "5"}, {"20", "-10"}, {"5", "0"}});
        double right = 0;
        for (int row = 1; row <= 2; ++row)
            for (int column = 1; column <= 3; ++column) {
                EXPECT_GE(chart.place(row, column).left(), right - 0.5) << row << column;
                right = chart.place(row, column).right();
            }
        const double ten = chart.place(1, 1).height();
        EXPECT_NEAR(chart.place(1, 2).height(), 2 * ten, 1.5);
        EXPECT_NEAR(chart.place(2, 1).height(), ten / 2, 1.5);
        EXPECT_NEAR(chart.place(2, 2).height(), ten, 1.5);
        EXPECT_NEAR(chart.place(2, 2).top(), chart.place(1, 1).bottom(), 1.5) << "below zero";
        EXPECT_LT(chart.place(2, 3).height(), 1);
    }
}

TEST(Chart, ColumnsShareABandWhereEachCanBeRead)
{
    using Ranges = std::vector<std::pair<double, double>>;
    const std::tuple<Ranges, QString, QString> rows[] = {
        // The lowest and the greatest of each column, and the bands of bars and of lines from the top.
        {{{0, 8}, {4, 9}, {5, 10}}, "012", "012"},
        {{{0, 0.05}, {0, 350}}, "1|0", "1|0"},
        {{{0, 0}, {0, 350}, {0, 0}}, "012", "012"},
        {{{-400, 0}, {0, 1}}, "0|1", "0|1"},
        {{{0, 1.02}, {0, 0.8}, {0, 78}, {0, 410}, {0, 350}, {0, 8}}, "234|015", "234|015"},
        {{{1.023, 1.026}, {8.1, 8.4}, {0, 9}}, "012", "2|1|0"}, // all of one size, but two are far from zero
        {{{340, 360}, {400, 420}, {-430, -400}}, "012", "2|01"},
        {{{0, 0}, {1.025, 1.025}}, "01", "1|0"},
        {{{1, 1.1},
          {11, 12},
          {130, 140},
          {17e2, 18e2},
          {24e3, 25e3},
          {36e4, 37e4},
          {58e5, 59e5},
          {98e6, 99e6},
          {18e8, 19e8}},
         "678|45|0123",
         "8|7|6|5|4|3|2|01"}, // never more than three or eight bands
    };
    for (const auto &[ranges, ofBars, ofLines] : rows) {
        ChartData data;
        data.resize(3, int(ranges.size())); // the middle row is blank
        for (int column = 0; column < data.columns(); ++column) {
            data.write(0, column, QString::number(ranges[size_t(column)].first));
            data.write(2, column, QString::number(ranges[size_t(column)].second));
        }
        for (const ChartShape shape : {ChartShape::Bar, ChartShape::Line}) {
            QStringList bands;
            for (const ChartBand &band : MakeChartBands(data, shape)) {
                bands << QString();
                EXPECT_LT(band.low, band.high);
                EXPECT_TRUE(shape == ChartShape::Line || (band.low <= 0 && band.high >= 0));
                for (const int column : band.columns) {
                    const auto [low, high] = ranges[size_t(column)];
                    bands.back() += QString::number(column);
                    EXPECT_TRUE(low >= band.low && high <= band.high);
                }
            }
            EXPECT_EQ(bands.join('|'), shape == ChartShape::Bar ? ofBars : ofLines);
        }
    }
    EXPECT_EQ(MakeChartBands(ChartData(), ChartShape::Bar).size(), 1u);
}

TEST(Chart, KeysWalkFromValueToValueAndAReaderIsToldEach)
{
    const std::pair<Qt::Key, const char *> steps[] = {
        {Qt::Key_Right, "1/1, A (ppm): 8"}, {Qt::Key_Right, "1/3, A (ppm): 6"}, // the second is blank
        {Qt::Key_Right, "1/3, A (ppm): 6"},                                     // there is no further one
        {Qt::Key_Down, "1/3, B: 3"},        {Qt::Key_Left, "1/2, B: 2"},        {Qt::Key_Up, "1/2, B: 2"},
        {Qt::Key_Home, "1/1, B: 1"},        {Qt::Key_End, "1/3, B: 3"},         {Qt::Key_Up, "1/3, A (ppm): 6"},
    };
    for (const int type : allTypes) {
        SCOPED_TRACE(type);
        ShownChart chart(type, {{"8", "", "6"}, {"1", "2", "3"}});
        chart.setColumn(1);
        chart.setColumnUnit("ppm");
        ASSERT_TRUE(QTest::qWaitForWindowActive(&chart));
        chart.setFocus();
        QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(&chart);
        const bool turns = ChartKindOf(type).depth; // without Shift, the arrows turn it
        for (const auto &[key, expected] : steps) {
            QTest::keyClick(&chart, key, turns ? Qt::ShiftModifier : Qt::NoModifier);
            EXPECT_EQ(reader->focusChild()->text(QAccessible::Name).toStdString(), expected);
        }
        chart.setRowCount(2);
        EXPECT_EQ(reader->focusChild(), nullptr) << "a new page begins anew";
    }
}
