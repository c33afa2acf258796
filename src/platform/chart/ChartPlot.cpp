#include "platform/chart/ChartPlot.h"

#include <cmath>

#include <QPicture>

#include "platform/chart/ChartDepth.h"
#include "platform/chart/ChartParts.h"
#include "platform/chart/ChartPie.h"

namespace {

constexpr double reach = 6; // pixels around a value within which the pointer hits it
constexpr double markerSize = 6;
constexpr double loneMarkerSize = 9;
constexpr int areaAlpha = 110;

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
