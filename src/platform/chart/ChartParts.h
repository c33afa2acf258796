// Small parts that a plot needs and QCustomPlot leaves to its users: ticks whose labels never
// run into each other, and the entries of the legend. Inside of the chart.
#pragma once

#include <qcustomplot.h>

#include "platform/chart/ChartData.h"
#include "platform/chart/ChartLook.h"

/// Ticks at the rows, each with its label, or at every second, third ... where they would not fit.
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

/// Ticks of an axis of values, at round steps that leave each label its height.
class ChartValueTicker : public QCPAxisTicker
{
public:
    /// Fits the labels into so many pixels; true if that changed something.
    bool fit(double pixels, const QFont &font);

protected:
    double getTickStep(const QCPRange &range) override { return roundStep(range.size() / m_most); }

private:
    /// The next step from that on that people count in: 1, 2, 2.5 or 5, or ten times that.
    static double roundStep(double step);
    double m_most = 5; ///< ticks
};

/// How a column looks in a type of chart, so small that it goes beside a line of text.
struct ChartSample
{
    ChartLook look;
    QColor paper;
    bool body;   ///< a bar, an area, a slice
    bool line;   ///< with its marker
    bool marker; ///< alone

    void draw(QCPPainter &painter, const QRectF &place) const;
};
ChartSample ChartSampleOf(const ChartKind &kind, int column, const QColor &paper);

QCPScatterStyle ChartMarkerOf(const ChartLook &look, double size);

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
