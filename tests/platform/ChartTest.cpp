#include <cmath>

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QFontMetricsF>
#include <QVector3D>

#include "platform/chart/Chart.h"
#include "platform/chart/ChartLook.h"
#include "platform/chart/ChartScale.h"
#include "platform/chart/ChartTitle.h"
#include "platform/controls/Style.h"
#include "platform/core/RuntimeFailure.h"
#include "support/Mouse.h"

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

/// Between 0 and 1, as the eye sees it: the distance in Oklab (Ottosson, 2020).
double difference(const QColor &one, const QColor &other)
{
    const auto oklab = [](const QColor &colour) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        const double r = linear(colour.redF()), g = linear(colour.greenF()), b = linear(colour.blueF());
        const double l = std::cbrt(0.4122214708 * r + 0.5363325363 * g + 0.0514459929 * b);
        const double m = std::cbrt(0.2119034982 * r + 0.6806995451 * g + 0.1073969566 * b);
        const double s = std::cbrt(0.0883024619 * r + 0.2817188376 * g + 0.6299787005 * b);
        return QVector3D(float(0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s),
                         float(1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s),
                         float(0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s));
    };
    return oklab(one).distanceToPoint(oklab(other));
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
    EXPECT_THROW(chart.setRow(5), RuntimeFailure);
    EXPECT_THROW(chart.setColumn(0), RuntimeFailure);
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
    struct Row
    {
        std::vector<std::pair<double, double>> values; ///< the lowest and the greatest of each column
        const char *ofBars, *ofLines;                  ///< bands from the top
    };
    const Row rows[] = {
        {{{0, 8}, {4, 9}, {5, 10}}, "012", "012"},
        {{{0, 0.05}, {0, 350}}, "1|0", "1|0"},
        {{{1, 2}, {10, 40}}, "1|0", "1|0"},
        {{{0, 0}, {0, 350}, {0, 0}}, "012", "012"},
        {{{0, 0}, {0, 0}}, "01", "01"},
        {{{-400, 0}, {0, 1}}, "0|1", "0|1"},
        {{{0, 1.02}, {0, 0.8}, {0, 78}, {0, 410}, {0, 350}, {0, 8}}, "234|015", "234|015"},
        {{{1.023, 1.026}, {8.1, 8.4}, {0, 9}}, "012", "2|1|0"}, // all of one size, but two are far from zero
        {{{340, 360}, {400, 420}, {-430, -400}}, "012", "2|01"},
        {{{0, 0}, {1.025, 1.025}}, "01", "1|0"},
        {{{1, 1.1}, {10, 11}, {100, 110}, {1e3, 1100}, {1e4, 11e3}, {1e5, 11e4}, {1e6, 11e5}, {1e7, 11e6}, {1e8, 11e7}},
         "",
         "8|7|6|5|4|3|2|01"},
    };
    for (const Row &row : rows) {
        ChartData data;
        data.resize(3, int(row.values.size())); // the middle row is blank
        for (int column = 0; column < data.columns(); ++column) {
            data.write(0, column, QString::number(row.values[size_t(column)].first));
            data.write(2, column, QString::number(row.values[size_t(column)].second));
        }
        for (const ChartShape shape : {ChartShape::Bar, ChartShape::Line}) {
            SCOPED_TRACE(row.ofLines);
            QStringList bands;
            for (const ChartBand &band : MakeChartBands(data, shape)) {
                bands << QString();
                EXPECT_LT(band.low, band.high);
                EXPECT_TRUE(shape == ChartShape::Line || (band.low <= 0 && band.high >= 0));
                for (const int column : band.columns) {
                    const auto [low, high] = row.values[size_t(column)];
                    bands.back() += QString::number(column);
                    EXPECT_TRUE(low >= band.low && high <= band.high);
                    EXPECT_TRUE(shape == ChartShape::Bar || low == high || data.columns() > 8 ||
                                (high - low) * 12 > band.high - band.low)
                        << column << " is flat";
                }
            }
            const QString expected = shape == ChartShape::Bar ? row.ofBars : row.ofLines;
            EXPECT_TRUE(expected.isEmpty() || bands.join('|') == expected) << bands.join('|').toStdString();
        }
    }
    EXPECT_EQ(MakeChartBands(ChartData(), ChartShape::Bar).size(), 1u);
}

TEST(Chart, ThirteenColumnsCanBeSeenAndToldApartOnEveryGround)
{
    // The backgrounds of light and dark desktops, some of them not quite white or black.
    for (const char *ground : {"#ffffff", "#fcfcfc", "#000000", "#1f2022", "#232629", "#3b4252", "#073642"}) {
        QPalette palette;
        palette.setColor(QPalette::Base, QColor(ground));
        const ChartColours colours = ChartColours::onScreen(palette);
        for (int one = 0; one < 13; ++one) {
            const ChartLook look = colours.look(one);
            EXPECT_GE(Contrast(look.colour, ground), 3) << ground << ' ' << one;
            for (int other = 0; other < one; ++other) {
                const ChartLook second = colours.look(other);
                EXPECT_NE(look.marker, second.marker);
                EXPECT_GT(difference(look.colour, second.colour), 0.1) << ground << ' ' << one << ' ' << other;
            }
        }
    }
    EXPECT_EQ(ChartColours::onPaper().look(0).colour, ChartColours::onScreen(QPalette(Qt::white)).look(0).colour);
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
        const QImage unmarked = chart.picture();
        const bool turns = ChartKindOf(type).depth;
        if (turns) {
            QTest::keyClick(&chart, Qt::Key_Right);
            EXPECT_FALSE(chart.current()) << "it turns";
        }
        for (const auto &[key, expected] : steps) {
            QTest::keyClick(&chart, key, turns ? Qt::ShiftModifier : Qt::NoModifier);
            EXPECT_EQ(reader->focusChild()->text(QAccessible::Name).toStdString(), expected);
            EXPECT_TRUE(reader->focusChild()->state().focused);
        }
        EXPECT_NE(chart.picture(), unmarked);
        const QAccessibleTableInterface &table = *reader->tableInterface();
        QStringList cells{table.columnDescription(0), table.columnDescription(1)};
        for (int row = 0; row < table.rowCount(); ++row)
            for (int column = 0; column < table.columnCount(); ++column) {
                QAccessibleInterface *cell = table.cellAt(row, column);
                EXPECT_EQ(reader->child(reader->indexOfChild(cell)), cell);
                EXPECT_EQ(cell->tableCellInterface()->rowIndex(), row);
                cells << cell->text(QAccessible::Value);
            }
        EXPECT_EQ(cells.join(' '), "A (ppm) B 8 1 no value 2 6 3");
        chart.setRowCount(2);
        EXPECT_EQ(reader->focusChild(), nullptr) << "a new page begins anew";
        EXPECT_EQ(reader->childCount(), 4);
    }
}

TEST(Chart, AnAxisIsTitledWithAllThatFits)
{
    ChartData data;
    data.resize(1, 4);
    data.columnLabels = {"ph", "Nh3", "No2", "a name of the keeper's own"};
    data.columnUnits = {"", "ppm", "ppm", ""};
    const QFontMetricsF metrics(QApplication::font());
    const auto wide = [&metrics](const char *text) { return metrics.horizontalAdvance(text) + 1; };
    const std::tuple<std::vector<int>, double, const char *> rows[] = {
        {{0, 1, 2}, 1000, "ph; Nh3, No2 (ppm)"},
        {{0, 1, 2}, wide("ph; Nh3, No2"), "ph; Nh3, No2\n(ppm)"},
        {{0, 1, 2}, wide("ppm"), "ppm"},
        {{1, 3}, wide("Nh3 (ppm); a name of"), "Nh3 (ppm); a name of\nthe keeper's own"},
        {{1, 3}, 4, ""},
    };
    for (const auto &[columns, pixels, expected] : rows)
        EXPECT_EQ(ValueAxisTitle(data, columns, metrics, pixels).toStdString(), expected);
    EXPECT_TRUE(ValueAxisTitle(data, {3}, metrics, wide("a name of")).endsWith(u'\u2026'));
}
