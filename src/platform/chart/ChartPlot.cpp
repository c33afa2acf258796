#include "platform/chart/ChartPlot.h"

#include <cmath>

#include <QPicture>
#include <QScopedValueRollback>

#include "platform/chart/ChartDepth.h"
#include "platform/chart/ChartParts.h"
#include "platform/chart/ChartPie.h"
#include "platform/chart/ChartTitle.h"

namespace {

constexpr int edge = 8;              // pixels between the chart and its rim
constexpr int gap = 4;               // pixels above and below a band
constexpr int labelGap = 4;          // pixels between the labels of the ticks and the title of an axis
constexpr double reach = 6;          // pixels around a value within which the pointer hits it
constexpr double legendShare = 0.35; // largest share of the height
constexpr double markerSize = 6;
constexpr double loneMarkerSize = 9;
constexpr int areaAlpha = 110;
constexpr int titledHeight = 12; // height and width of the smallest chart whose axes have titles, in font heights
constexpr int titledWidth = 20;

QFont inPixels(QFont font, double factor = 1)
{
    font.setPixelSize(std::max(1, qRound(QFontInfo(font).pixelSize() * factor))); // points would make it grow on paper
    return font;
}

double distance(const QRectF &rect, const QPointF &point)
{
    const double x = std::max({rect.left() - point.x(), 0.0, point.x() - rect.right()});
    const double y = std::max({rect.top() - point.y(), 0.0, point.y() - rect.bottom()});
    return std::hypot(x, y);
}

} // namespace

ChartPlot::ChartPlot(QWidget *parent) :
    QCustomPlot(parent), m_kind(ChartKindOf(1)), m_colours(ChartColours::onPaper()), m_margins(new QCPMarginGroup(this))
{
    plotLayout()->clear();
    plotLayout()->setRowSpacing(4);
    setNoAntialiasingOnDrag(false);
    setPlottingHint(QCP::phFastPolylines); // a wide line drawn as a whole is many times slower
    connect(this, &QCustomPlot::afterLayout, this, [this] { fit(); });
}

void ChartPlot::clear()
{
    clearPlottables();
    m_bands.clear();
    m_hiddenLegend.reset();
    plotLayout()->clear();
    plotLayout()->setRowStretchFactors({});
}

void ChartPlot::build(const ChartData &data, int chartType, const QString &title, const ChartColours &colours)
{
    clear();
    m_data = data;
    m_kind = ChartKindOf(chartType);
    m_colours = colours;
    m_font = inPixels(font());
    m_away = {};
    setBackground(QBrush(colours.paper));
    m_titleText = title;
    if (!title.isEmpty())
        addTitle();
    if (m_kind.shape == ChartShape::Pie) {
        addPie();
    } else {
        const std::vector<ChartBand> bands = MakeChartBands(m_data, m_kind.shape);
        m_rows = QSharedPointer<ChartRowTicker>::create(m_data.rowLabels);
        m_bands.reserve(bands.size()); // the plottables copy these; their pointers lead into this plot only
        for (const ChartBand &band : bands)
            addBand(band, &band == &bands.back());
    }
    addLegend();
}

void ChartPlot::addTitle()
{
    QFont bold = inPixels(font(), 1.25);
    bold.setBold(true);
    m_title = new QCPTextElement(this, m_titleText, bold);
    m_title->setTextColor(m_colours.ink);
    plotLayout()->addElement(plotLayout()->rowCount(), 0, m_title);
}

void ChartPlot::addPie()
{
    auto *rect = new QCPAxisRect(this);
    plotLayout()->addElement(plotLayout()->rowCount(), 0, rect);
    for (QCPAxis *axis : rect->axes()) {
        axis->setVisible(false);
        axis->grid()->setVisible(false);
    }
    rect->setMinimumMargins(QMargins(edge, edge, edge, 0));
    m_pie = new ChartPie(*rect, m_data, m_colours, m_font);
}

/// Sets the colours and fonts of the axes. The right axis is shown instead of the left one if the depth goes to the
/// left.
void ChartPlot::dress(QCPAxisRect &rect)
{
    rect.setMarginGroup(QCP::msLeft | QCP::msRight, m_margins);
    const QPen line(m_colours.ink, 1);
    for (QCPAxis *axis : rect.axes()) {
        axis->setLayer(QStringLiteral("axes"));
        axis->grid()->setLayer(QStringLiteral("grid"));
        axis->grid()->setVisible(axis->axisType() == QCPAxis::atLeft && !m_kind.depth);
        axis->grid()->setPen(QPen(m_colours.grid, 1));
        axis->grid()->setZeroLinePen(QPen(m_colours.ink, 1));
        axis->setBasePen(line);
        axis->setTickPen(line);
        axis->setSubTicks(false);
        axis->setTickLabelFont(m_font);
        axis->setTickLabelColor(m_colours.ink);
        axis->setLabelFont(m_font);
        axis->setLabelColor(m_colours.ink);
    }
}

void ChartPlot::addBand(const ChartBand &band, bool isLast)
{
    auto *rect = new QCPAxisRect(this);
    plotLayout()->addElement(plotLayout()->rowCount(), 0, rect);
    dress(*rect);
    rect->setMinimumSize(1, 1); // many bands share a low chart
    rect->setMinimumMargins(QMargins(edge, gap, 2 * edge, gap));
    QCPAxis *keys = rect->axis(QCPAxis::atBottom);
    keys->setTicker(m_rows);
    keys->setTickLabels(isLast);
    keys->setRange(0.4, std::max(1, m_data.rows()) + 0.6);
    const auto ticker = QSharedPointer<ChartValueTicker>::create();
    for (const auto side : {QCPAxis::atLeft, QCPAxis::atRight}) {
        QCPAxis *values = rect->axis(side);
        values->setTickLabels(true);
        values->setRange(band.low, band.high);
        values->setTicker(ticker);
    }
    const ChartBandView &view =
        m_bands.emplace_back(ChartBandView{&m_data, band, m_kind, keys, rect->axis(QCPAxis::atLeft), &m_away});
    if (m_kind.depth) {
        new ChartDepth(view, m_colours);
        return;
    }
    // Bars come first, so that lines and points lie over them.
    for (const int column : view.backToFront())
        if (DrawnAsBars(m_kind.shape, column))
            addBars(view, column);
    for (const int column : view.backToFront())
        if (!DrawnAsBars(m_kind.shape, column))
            addGraph(view, column);
}

void ChartPlot::addBars(const ChartBandView &view, int column)
{
    const ChartLook look = m_colours.look(column);
    const auto [offset, width] = view.bar(column);
    auto *bars = new QCPBars(view.keys, view.values);
    QSharedPointer<QCPBarsDataContainer> cells(new QCPBarsDataContainer);
    for (int row = 0; row < m_data.rows(); ++row)
        if (!m_data.isBlank(row, column))
            cells->add(QCPBarsData(row + 1 + offset, m_data.value(row, column)));
    bars->setData(cells);
    bars->setWidth(width);
    bars->setPen(look.rim());
    bars->setBrush(look.colour);
    bars->setAntialiased(false);
    bars->setAntialiasedFill(false);
}

void ChartPlot::addGraph(const ChartBandView &view, int column)
{
    const ChartLook look = m_colours.look(column);
    auto *graph = new ChartGraph(view.keys, view.values);
    QSharedPointer<QCPGraphDataContainer> cells(new QCPGraphDataContainer);
    for (int row = 0; row < m_data.rows(); ++row)
        cells->add(QCPGraphData(row + 1, m_data.value(row, column))); // NaN for a blank cell makes a gap
    graph->setData(cells);
    graph->setAdaptiveSampling(false);
    graph->setPen(look.line());
    const bool points = m_kind.shape == ChartShape::Points;
    graph->setScatterStyle(ChartMarkerOf(look, points ? loneMarkerSize : markerSize));
    graph->setLineStyle(points                             ? QCPGraph::lsNone
                        : m_kind.shape == ChartShape::Step ? QCPGraph::lsStepCenter
                                                           : QCPGraph::lsLine);
    if (m_kind.shape == ChartShape::Area) {
        QColor fill = look.colour;
        fill.setAlpha(areaAlpha);
        graph->setBrush(fill);
    }
}

void ChartPlot::addLegend()
{
    if (m_data.columns() == 0)
        return;
    m_legend = new QCPLegend;
    plotLayout()->addElement(plotLayout()->rowCount(), 0, m_legend);
    plotLayout()->setRowStretchFactor(plotLayout()->rowCount() - 1, 0.001); // no higher than its entries need
    m_legend->setLayer(QStringLiteral("legend"));
    m_legend->setBrush(Qt::NoBrush);
    m_legend->setBorderPen(Qt::NoPen);
    m_legend->setFont(m_font);
    m_legend->setTextColor(m_colours.ink);
    m_legend->setColumnSpacing(14);
    m_legend->setFillOrder(QCPLayoutGrid::foColumnsFirst);
    for (int column = 0; column < m_data.columns(); ++column)
        m_legend->addItem(
            new ChartLegendItem(m_legend, ChartSampleOf(m_kind, column, m_colours), m_data.columnLabels.at(column)));
}

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

void ChartPlot::setMark(const ChartCell &cell, const QString &text)
{
    m_marked = cell;
    m_markText = text;
    update();
}

void ChartPlot::paintEvent(QPaintEvent *event)
{
    QCustomPlot::paintEvent(event);
    if (!m_marked)
        return;
    QPainter painter(this);
    painter.setFont(m_font);
    DrawChartMark(painter, place(m_marked.row, m_marked.column), m_markText, m_colours, rect());
}

// Records the painting and plays it on the given painter: QCustomPlot needs a QCPPainter, and one of its own on the
// page would end the page.
void ChartPlot::paintVectors(QPainter &painter, const QSizeF &size)
{
    QPicture picture;
    QCPPainter recorder;
    recorder.begin(&picture);
    recorder.setMode(QCPPainter::pmVectorized);
    recorder.setMode(QCPPainter::pmNoCaching);
    toPainter(&recorder, qRound(size.width()), qRound(size.height()));
    recorder.end();
    // A recording is played at the size that it had on the screen; the scale makes up for the resolution of the device.
    const QPaintDevice &device = *painter.device();
    painter.scale(double(picture.logicalDpiX()) / device.logicalDpiX(),
                  double(picture.logicalDpiY()) / device.logicalDpiY());
    painter.drawPicture(0, 0, picture);
}

ChartCell ChartPlot::cellAt(const QPointF &place) const
{
    if (m_pie && m_kind.shape == ChartShape::Pie)
        return m_pie->cellAt(place);
    ChartCell nearest;
    double least = reach;
    for (const ChartBandView &view : m_bands)
        for (const int column : view.backToFront()) // where two meet, the one in front is found last and wins
            for (int row = 0; row < m_data.rows(); ++row)
                if (!m_data.isBlank(row, column))
                    if (const double away = distance(view.place(row, column), place); away <= least) {
                        least = away;
                        nearest = {row, column};
                    }
    return nearest;
}

QRectF ChartPlot::place(int row, int column) const
{
    if (m_data.isBlank(row, column))
        return {};
    if (m_pie && m_kind.shape == ChartShape::Pie)
        return m_pie->place(row, column);
    for (const ChartBandView &view : m_bands)
        if (view.has(column))
            return view.place(row, column);
    return {};
}
