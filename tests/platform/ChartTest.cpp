#include <cmath>
#include <limits>

#include <QBuffer>
#include <QClipboard>
#include <qcustomplot.h>
#include <QHelpEvent>
#include <QPainter>
#include <QPdfWriter>
#include <QToolTip>

#include <gtest/gtest.h>

#include "platform/chart/Chart.h"
#include "platform/chart/ChartLook.h"
#include "platform/chart/ChartScale.h"
#include "platform/RuntimeFailure.h"
#include "support/Mouse.h"

namespace {

constexpr int allTypes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 16};
constexpr int pie = 14;

/// A chart on the screen whose rows are "1/1", "1/2" ... and whose columns are "A", "B" ...; "" is blank.
struct ShownChart : Chart
{
    ShownChart(int type, const std::vector<QStringList> &columns, const QSize &size = {600, 400})
    {
        setAttribute(Qt::WA_DontShowOnScreen, false);
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

/// Pixels of a column's hue, however light or dark, in a strip as high as the picture.
int painted(const QImage &image, double x, double halfWidth, int column)
{
    const QColor colour = ChartLookOf(column).colour;
    int count = 0;
    for (int px = int(x - halfWidth); px <= int(x + halfWidth); ++px)
        for (int y = 0; y < image.height() * 4 / 5; ++y) { // above the legend
            const QColor pixel = image.pixelColor(px, y);
            count += pixel.hsvSaturation() > 60 && std::abs(pixel.hsvHue() - colour.hsvHue()) < 12;
        }
    return count;
}

std::vector<QStringList> wave(int rows, int columns)
{
    std::vector<QStringList> all(static_cast<size_t>(columns));
    for (int column = 0; column < columns; ++column)
        for (int row = 0; row < rows; ++row)
            all[size_t(column)] << QString::number((2 + std::sin(row + column)) * std::pow(10, column % 5 - 2) *
                                                   (column == 7 ? -1 : 1));
    return all;
}

} // namespace

TEST(Chart, EveryTypeDrawsEveryValueInItsWindowAndNothingForABlank)
{
    for (const int type : allTypes)
        for (const auto &[rows, columns] : {std::pair{1, 1}, {2, 13}, {20, 1}, {20, 13}})
            for (const QSize size : {QSize(700, 500), QSize(150, 110), QSize(150, 600)}) {
                SCOPED_TRACE(QStringLiteral("type %1, %2 x %3").arg(type).arg(rows).arg(columns).toStdString());
                auto cells = wave(rows, columns);
                cells.back().back() = rows > 1 ? "" : "5";
                ShownChart chart(type, cells, size);
                chart.setTitleText("Ostrelmark Graph for a tank with quite a long name");
                chart.setColumnLabel(QString(99, 'W')); // of the last
                EXPECT_GT(painted(chart.picture(), size.width() / 2.0, size.width() / 2.0 - 1, 0), 3);
                for (int row = 1; row <= rows; ++row)
                    for (int column = 1; column <= columns; ++column) {
                        const QRectF place = chart.place(row, column);
                        ASSERT_EQ(place.isEmpty() && place.topLeft().isNull(),
                                  rows > 1 && row * column == rows * columns)
                            << row << ' ' << column;
                        ASSERT_TRUE(QRectF(chart.rect()).contains(place.center())) << row << ' ' << column;
                    }
            }
}

TEST(Chart, ABlankCellIsAGap)
{
    for (const int type : allTypes) {
        if (type == pie)
            continue;
        SCOPED_TRACE(type);
        ShownChart whole(type, {{"8", "8", "8", "8", "8"}}), gap(type, {{"8", "8", "", "8", "8"}});
        // Where the third row stands: bodies with depth lean over from their neighbours, so that only its front counts.
        const double x = whole.place(3, 1).center().x();
        const bool bodies = type == 0 || type == 8;
        const double half = bodies ? 1 : 5;
        const int without = painted(gap.picture(), x, half, 0), with = painted(whole.picture(), x, half, 0);
        EXPECT_LE(without, bodies ? with / 2 : 0);
        EXPECT_GT(with, 0);
        EXPECT_TRUE(gap.place(3, 1).isNull());
    }
    ShownChart pies(pie, {{"1", "1"}, {"3", ""}});
    const QImage image = pies.picture();
    EXPECT_GT(painted(image, pies.place(1, 1).center().x(), 40, 1), 0);
    EXPECT_EQ(painted(image, pies.place(2, 1).center().x(), 40, 1), 0);
}

TEST(Chart, BarsStandInTheOrderOfTheColumnsAndAreAsHighAsTheirValues)
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

TEST(Chart, LabelsNeverTouchAtAnySize)
{
    ShownChart chart(3, wave(20, 5));
    const auto *plot = chart.findChild<QCustomPlot *>();
    for (const int type : {3, 0})
        for (int width = 90; width < 1300; width += 55) {
            chart.setChartType(type);
            chart.resize(width, width * 2 / 3);
            chart.picture();
            int labels = 0;
            for (const QCPAxisRect *rect : plot->axisRects())
                for (const QCPAxis *axis : rect->axes()) {
                    const QFontMetricsF metrics(axis->tickLabelFont());
                    const bool across = axis->orientation() == Qt::Horizontal;
                    double end = -1000;
                    const auto ticks = axis->tickVector();
                    for (int i = 0; axis->tickLabels() && i < ticks.size(); ++i, ++labels) {
                        const double at = axis->coordToPixel(ticks[i]) * (across ? 1 : -1);
                        const QString text = axis->tickVectorLabels().at(i);
                        const double half = (across ? metrics.horizontalAdvance(text) : metrics.height()) / 2;
                        EXPECT_GE(at - half, end) << "width " << width << ", " << text.toStdString();
                        end = at + half;
                        EXPECT_TRUE(!across || (end <= width && at - half >= 0)) << width << text.toStdString();
                    }
                }
            EXPECT_GE(labels, 2);
        }
}

TEST(Chart, ColumnsOfLikeSizeShareAnAxis)
{
    const struct
    {
        std::vector<double> greatest; ///< of each column
        const char *bands;            ///< from the top
    } rows[] = {
        {{8, 9, 10}, "012"},
        {{0.05, 350}, "1|0"},
        {{0, 350, 0}, "012"},
        {{0, 0}, "01"},
        {{8.2, 0.8, 0.6, 12}, "03|12"},
        {{1, 1e3, 1e6, 1e9}, "23|1|0"},
        {{-400, 1}, "0|1"},
        {{1.02, 0.8, 78, 410, 350, 8}, "234|015"},
    };
    for (const auto &row : rows) {
        ChartData data;
        data.resize(2, int(row.greatest.size()));
        for (int column = 0; column < data.columns(); ++column) {
            data.write(0, column, QString::number(row.greatest[size_t(column)]));
            data.write(1, column, QString::number(row.greatest[size_t(column)] / 2));
        }
        for (const ChartShape shape : {ChartShape::Bar, ChartShape::Line, ChartShape::Area}) {
            QStringList bands;
            for (const ChartBand &band : MakeChartBands(data, shape)) {
                QString columns;
                for (const int column : band.columns) {
                    columns += QString::number(column);
                    EXPECT_GE(row.greatest[size_t(column)], band.low);
                    EXPECT_LE(row.greatest[size_t(column)], band.high);
                }
                bands << columns;
                EXPECT_LT(band.low, band.high);
                EXPECT_TRUE(shape == ChartShape::Line || (band.low <= 0 && band.high >= 0)) << row.bands;
            }
            EXPECT_EQ(bands.join('|').toStdString(), row.bands);
        }
    }
    EXPECT_EQ(MakeChartBands(ChartData(), ChartShape::Bar).size(), 1u);
}

TEST(Chart, ACellWithoutANumberIsBlankAndACellThatIsNotThereFails)
{
    ShownChart chart(1, {{"", "abc", "1e300", "7"}});
    for (int row = 1; row <= 3; ++row)
        EXPECT_TRUE(chart.place(row, 1).isNull()) << row;
    EXPECT_FALSE(chart.place(4, 1).isNull());
    for (const int beyond : {0, 5})
        EXPECT_THROW(chart.setRow(beyond), RuntimeFailure);
    for (const int beyond : {0, 2})
        EXPECT_THROW(chart.setColumn(beyond), RuntimeFailure);
}

TEST(Chart, TheToolTipTellsWhatIsUnderThePointer)
{
    for (const int type : allTypes) {
        SCOPED_TRACE(type);
        ShownChart chart(type, {{"8.50", "7", "9"}, {"0.2", "", "0.300"}});
        EXPECT_EQ(chart.tip(chart.place(1, 1).center()), "1/1\nA: 8.50");
        EXPECT_EQ(chart.tip(chart.place(3, 2).center()), "1/3\nB: 0.300");
        EXPECT_EQ(chart.tip(QPointF(2, 2)), "");
        const QPoint place = chart.place(2, 1).center().toPoint();
        QHelpEvent help(QEvent::ToolTip, place, chart.mapToGlobal(place));
        QApplication::sendEvent(&chart, &help);
        EXPECT_EQ(QToolTip::text(), "1/2\nA: 7");
    }
    QToolTip::hideText();
}

TEST(Chart, CtrlAndTheMouseTurnAChartWithDepthAlone)
{
    for (const int type : allTypes) {
        SCOPED_TRACE(type);
        ShownChart chart(type, {{"8", "7", "9"}});
        const auto move = [&chart](const QPoint &to, Qt::KeyboardModifiers keys) {
            QMouseEvent event(QEvent::MouseMove, to, chart.mapToGlobal(to), Qt::NoButton, Qt::NoButton, keys);
            QApplication::sendEvent(&chart, &event);
        };
        const QImage before = chart.picture();
        move({300, 200}, {});
        move({60, 200}, {});
        EXPECT_EQ(chart.picture(), before);
        move({300, 200}, Qt::ControlModifier);
        EXPECT_EQ(chart.picture(), before) << "where the turn begins";
        move({60, 240}, Qt::ControlModifier);
        const QImage turned = chart.picture();
        EXPECT_EQ(turned != before, type <= 8 && type % 2 == 0);
        EXPECT_TRUE(QRectF(chart.rect()).contains(chart.place(1, 1)));
        chart.setTitleText("T");
        chart.setTitleText("");
        EXPECT_EQ(chart.picture(), turned) << "drawn anew, it stays turned";
        QTest::keyClick(&chart, Qt::Key_Right, Qt::ControlModifier);
        EXPECT_EQ(chart.picture() != turned, turned != before);
    }
}

TEST(Chart, OnPaperItIsVectorsOnWhiteAndTheClipboardGetsAPicture)
{
    QPalette dark(QColor(0x35, 0x37, 0x3b), QColor(0x2b, 0x2d, 0x30));
    dark.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x24));
    for (const int type : allTypes) {
        SCOPED_TRACE(type);
        ShownChart chart(type, wave(20, 13));
        chart.setPalette(dark);
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        QPdfWriter pdf(&file);
        QPainter painter(&pdf);
        chart.paintOn(painter, QSizeF(pdf.width(), pdf.height() / 2.0));
        painter.end();
        EXPECT_FALSE(file.data().contains("/Subtype /Image")) << "a bitmap";
        EXPECT_TRUE(file.data().contains("/Font")) << "no letters";
        QGuiApplication::clipboard()->clear();
        chart.EditCopy();
        const QImage image = QGuiApplication::clipboard()->image();
        EXPECT_EQ(image.size(), chart.size() * 2);
        EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::white));
        EXPECT_NE(chart.picture().pixelColor(2, 2), QColor(Qt::white));
    }
}

TEST(Chart, ItsHuesStayApartForTheColourBlind)
{
    // Machado, Oliveira and Fernandes (2009), severity 1.0: protanopia, deuteranopia, tritanopia, on linear light.
    constexpr double blindness[3][9] = {
        {0.152286, 1.052583, -0.204868, 0.114503, 0.786281, 0.099216, -0.003882, -0.048116, 1.051998},
        {0.367322, 0.860646, -0.227968, 0.280085, 0.672501, 0.047413, -0.011820, 0.042940, 0.968881},
        {1.255528, -0.076749, -0.178779, -0.078411, 0.930809, 0.147602, 0.004733, 0.691367, 0.303900}};
    const auto seen = [](int column, const double *by) {
        const QColor colour = ChartLookOf(column).colour;
        const double light[] = {std::pow(colour.redF(), 2.2), std::pow(colour.greenF(), 2.2),
                                std::pow(colour.blueF(), 2.2)};
        std::array<double, 3> result{};
        for (size_t i = 0; i < 3; ++i)
            result[i] = std::pow(std::clamp(by[3 * i] * light[0] + by[3 * i + 1] * light[1] + by[3 * i + 2] * light[2],
                                            0.0, 1.0),
                                 1 / 2.2) *
                        255;
        return result;
    };
    for (const auto &kind : blindness)
        for (int one = 0; one < 7; ++one)
            for (int other = 0; other < one; ++other) {
                const auto a = seen(one, kind), b = seen(other, kind);
                EXPECT_GT(std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]), 25) << one << ' ' << other;
            }
}
