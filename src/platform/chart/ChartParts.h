// Small parts that QCustomPlot leaves to its users: axis ticks whose labels never overlap, whole markers at the ends of
// an axis, legend entries, and the frame around the current value. Only the chart uses it.
#pragma once

#include <qcustomplot.h>

#include "platform/chart/ChartData.h"
#include "platform/chart/ChartLook.h"

/// Ticks with the labels of the rows: at every row, or at every second, third and so on if the labels would not fit.
class ChartRowTicker : public QCPAxisTicker
{
public:
    explicit ChartRowTicker(const QStringList &labels) : m_labels(labels) {}
    /// Fits the labels into so many pixels; true if that changed something.
    bool fit(double pixels, const QFont &font);

protected:
    QVector<double> createTickVector(double tickStep, const QCPRange &range) override;
    QVector<QString> createLabelVector(const QVector<double> &ticks, const QLocale &locale, QChar formatChar,
                                       int precision) override;
    int getSubTickCount(double) override { return 0; }

private:
    QStringList m_labels;
    int m_step = 1;
};

/// Ticks of a value axis, at round steps with enough height for each label.
class ChartValueTicker : public QCPAxisTicker
{
public:
    /// Fits the labels into so many pixels; true if that changed something.
    bool fit(double pixels, const QFont &font);

protected:
    double getTickStep(const QCPRange &range) override;

private:
    /// Rounds a step up to 1, 2, 2.5 or 5 times a power of ten.
    static double roundStep(double step);
    double m_most = 5; ///< number of ticks
};

/// Lines and points whose markers may stand out over the ends of the axes.
class ChartGraph : public QCPGraph
{
public:
    using QCPGraph::QCPGraph;

protected:
    QRect clipRect() const override;
};

/// A small sample of how a column is drawn, for the legend.
struct ChartSample
{
    ChartLook look;
    bool body;   ///< a bar, an area or a slice
    bool line;   ///< a line with its marker
    bool marker; ///< a marker alone

    void draw(QCPPainter &painter, const QRectF &place) const;
};
ChartSample ChartSampleOf(const ChartKind &kind, int column, const ChartColours &colours);

QCPScatterStyle ChartMarkerOf(const ChartLook &look, double size);

/// Frames the place of a value and writes a text beside it, like a tool tip, inside the given area.
void DrawChartMark(QPainter &painter, const QRectF &place, const QString &text, const ChartColours &colours,
                   const QRectF &area);

class ChartLegendItem : public QCPAbstractLegendItem
{
public:
    ChartLegendItem(QCPLegend *legend, const ChartSample &sample, const QString &text);

    QSize minimumOuterSizeHint() const override;

protected:
    void draw(QCPPainter *painter) override;

private:
    ChartSample m_sample;
    QString m_text;
};
