// Fits the parts of a chart to its size, at each layout.
#include <cmath>

#include <QScopedValueRollback>

#include "platform/chart/ChartParts.h"
#include "platform/chart/ChartPlot.h"
#include "platform/chart/ChartTitle.h"

namespace {

constexpr int labelGap = 4;          // pixels between the labels of the ticks and the title of an axis
constexpr double legendShare = 0.35; // largest share of the height
constexpr int titledHeight = 12;     // height and width of the smallest chart whose axes have titles, in font heights
constexpr int titledWidth = 20;

} // namespace

// Fitting one part may make it necessary to fit another: with fewer lines of legend, the bands get higher and deeper.
void ChartPlot::fit()
{
    if (m_fitting)
        return;
    const QScopedValueRollback<bool> once(m_fitting, true);
    for (int pass = 0; pass < 6; ++pass) {
        bool changed = false;
        for (const auto part : {&ChartPlot::fitTitle, &ChartPlot::fitLegend, &ChartPlot::fitDepth,
                                &ChartPlot::fitHeights, &ChartPlot::fitLabels})
            changed = (this->*part)() || changed;
        if (!changed && !fitAxisTitles()) // it measures many texts, so it waits until the rest has its place
            return;
        updateLayout();
    }
}

/// Shortens the title to the width of the picture, which would otherwise grow with it.
bool ChartPlot::fitTitle()
{
    if (!m_title)
        return false;
    const QString text = QFontMetrics(m_title->font())
                             .elidedText(m_titleText, Qt::ElideRight, std::max(0, viewport().width() - 4 * edge));
    const bool changed = text != m_title->text();
    m_title->setText(text);
    return changed;
}

/// Puts as many legend entries in a line as fit, and hides the legend if it would leave the chart no room.
bool ChartPlot::fitLegend()
{
    if (!m_legend)
        return false;
    int widest = 1, height = 1;
    for (int i = 0; i < m_legend->elementCount(); ++i)
        if (const QCPLayoutElement *item = m_legend->elementAt(i)) { // the last line may have empty places
            const QSize size = item->minimumOuterSizeHint();
            widest = std::max(widest, size.width());
            height = size.height();
        }
    const int count = m_data.columns();
    const int entry = widest + m_legend->columnSpacing();
    const int room = viewport().width() - 4 * edge + m_legend->columnSpacing();
    const int wrap = std::clamp(room / entry, 1, count);
    // The width that is left over goes to the right of the entries.
    m_legend->setMargins(QMargins(2 * edge, 0, 2 * edge + std::max(0, room - wrap * entry), 4));
    const int lines = (count + wrap - 1) / wrap;
    const bool fits = widest + 4 * edge <= viewport().width() &&
                      lines * (height + m_legend->rowSpacing()) <= viewport().height() * legendShare;
    bool changed = false;
    if (fits != !m_hiddenLegend) {
        changed = true;
        if (fits) {
            plotLayout()->addElement(plotLayout()->rowCount(), 0, m_hiddenLegend.release());
            plotLayout()->setRowStretchFactor(plotLayout()->rowCount() - 1, 0.001);
        } else {
            plotLayout()->take(m_legend);
            plotLayout()->simplify();
            m_hiddenLegend.reset(m_legend);
        }
        m_legend->setVisible(fits);
    }
    if (m_legend->wrap() != wrap) {
        changed = true;
        m_legend->setWrap(wrap);
        m_legend->setFillOrder(QCPLayoutGrid::foColumnsFirst, true);
    }
    return changed;
}

/// The depth in pixels: a share of a band's height, limited for bars by their width.
double ChartPlot::depth() const
{
    double depth = std::min<double>(viewport().width() / 2.0, viewport().height() / double(m_bands.size())) * 0.22;
    if (m_kind.shape == ChartShape::Bar)
        for (const ChartBandView &view : m_bands)
            if (!view.band.columns.empty())
                depth = std::min(depth, viewport().width() / view.keys->range().size() *
                                            view.bar(view.band.columns.front()).width * 1.5);
    return std::clamp(depth, 8.0, 90.0);
}

bool ChartPlot::fitDepth()
{
    if (!m_kind.depth || m_bands.empty())
        return false;
    const QPointF away(depth() * m_turn.right * 1.2, -depth() * m_turn.up);
    if (away == m_away)
        return false;
    m_away = away;
    const bool toTheRight = away.x() >= 0;
    const int side = int(std::ceil(std::abs(away.x()))) + edge;
    for (const ChartBandView &view : m_bands) {
        QCPAxisRect *rect = view.keys->axisRect();
        rect->setMinimumMargins(
            QMargins(toTheRight ? edge : side, int(std::ceil(-away.y())) + gap, toTheRight ? side + edge : edge, gap));
        rect->axis(QCPAxis::atLeft)->setVisible(toTheRight);
        rect->axis(QCPAxis::atRight)->setVisible(!toTheRight);
    }
    return true;
}

/// Makes the axes of all bands equally long, although the last band also holds the labels of the rows.
bool ChartPlot::fitHeights()
{
    double height = 0;
    for (const ChartBandView &view : m_bands)
        height += view.values->axisRect()->height() / double(m_bands.size());
    bool changed = false;
    for (int row = 0; row < plotLayout()->rowCount() && m_bands.size() > 1; ++row)
        if (const auto *rect = qobject_cast<QCPAxisRect *>(plotLayout()->element(row, 0))) {
            const double whole = std::max(1.0, height + rect->outerRect().height() - rect->height());
            changed = changed || std::abs(plotLayout()->rowStretchFactors().at(row) - whole) >= 1;
            plotLayout()->setRowStretchFactor(row, whole);
        }
    return changed;
}

bool ChartPlot::fitLabels()
{
    if (m_bands.empty())
        return false;
    bool changed = m_rows->fit(m_bands.back().keys->axisRect()->width(), m_font);
    for (const ChartBandView &view : m_bands) {
        const auto ticker = view.values->ticker().staticCast<ChartValueTicker>();
        changed = ticker->fit(view.values->axisRect()->height(), m_font) || changed;
    }
    return changed;
}

// A small chart needs all its room for its values. The titles of the bands stand below each other, whatever the width
// of the labels beside them.
bool ChartPlot::fitAxisTitles()
{
    const QFontMetricsF metrics(m_font);
    const bool titled =
        viewport().height() >= titledHeight * metrics.height() && viewport().width() >= titledWidth * metrics.height();
    bool changed = false;
    const auto set = [&changed](QCPAxis *axis, const QString &title) {
        changed = changed || axis->label() != title;
        axis->setLabel(title);
    };
    const auto labelWidth = [&metrics](const ChartBandView &view) {
        double widest = 0;
        for (const QString &label : view.values->tickVectorLabels())
            widest = std::max(widest, metrics.horizontalAdvance(label));
        return int(widest);
    };
    int widest = 0;
    for (const ChartBandView &view : m_bands)
        widest = std::max(widest, labelWidth(view));
    for (const ChartBandView &view : m_bands) {
        const QCPAxisRect &rect = *view.keys->axisRect();
        const QString title = titled ? ValueAxisTitle(m_data, view.band.columns, metrics, rect.height()) : QString();
        const int padding = labelGap + widest - labelWidth(view);
        changed = changed || view.values->labelPadding() != padding;
        for (QCPAxis *axis : {rect.axis(QCPAxis::atLeft), rect.axis(QCPAxis::atRight)}) {
            set(axis, title);
            axis->setLabelPadding(padding);
        }
    }
    if (!m_bands.empty())
        set(m_bands.back().keys, titled ? m_data.rowsTitle : QString());
    return changed;
}
