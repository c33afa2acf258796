#include "platform/chart/Chart.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "platform/chart/ChartPlot.h"
#include "platform/chart/ChartTable.h"
#include "platform/core/RuntimeFailure.h"

namespace {

constexpr double paperWidth = 1000; // width of a chart on paper, in pixels
constexpr double fullTurn = 300;    // pixels of mouse movement for the largest turn
constexpr double keyTurn = 20;      // pixels of mouse movement that an arrow key stands for
constexpr int frame = 1;            // pixels around the plot; visible while the chart has the focus

ChartTurn turnedBy(const ChartTurn &turn, const QPointF &moved)
{
    return {std::clamp(turn.right + moved.x() / fullTurn, -1.0, 1.0),
            std::clamp(turn.up - moved.y() / fullTurn, 0.0, 1.0)};
}

QPoint wayOf(int key)
{
    switch (key) {
    case Qt::Key_Left: return {-1, 0};
    case Qt::Key_Right: return {1, 0};
    case Qt::Key_Up: return {0, -1};
    case Qt::Key_Down: return {0, 1};
    default: return {};
    }
}

QString describe(const ChartData &data, const ChartCell &cell)
{
    return data.rowLabels.at(cell.row) + u'\n' + data.columnLabels.at(cell.column) + QStringLiteral(": ") +
           data.text(cell.row, cell.column);
}

} // namespace

Chart::Chart(QWidget *parent) : QWidget(parent), m_plot(new ChartPlot(this))
{
    OfferChartsAsTables();
    setMouseTracking(true); // turning and tool tips need no pressed button
    setFocusPolicy(Qt::StrongFocus);
    m_plot->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_plot->setFocusPolicy(Qt::NoFocus);
    changed();
}

void Chart::changed()
{
    if (std::exchange(m_stale, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            drawNow();
            QAccessibleTableModelChangeEvent event(this, QAccessibleTableModelChangeEvent::ModelReset);
            QAccessible::updateAccessibility(&event);
        },
        Qt::QueuedConnection);
}

void Chart::drawNow() const
{
    if (!std::exchange(m_stale, false))
        return;
    m_plot->build(m_data, m_type, m_title, ChartColours::onScreen(palette()));
    m_plot->replot(QCustomPlot::rpQueuedRefresh);
    m_plot->setVisible(m_data.rows() > 0); // without rows there are no axes either, and room for a sentence
}

void Chart::setColumnCount(int count)
{
    m_data.resize(m_data.rows(), count);
    m_current = {};
    showMark();
    changed();
}

void Chart::setRowCount(int count)
{
    m_data.resize(count, m_data.columns());
    m_current = {};
    showMark();
    changed();
}

void Chart::setChartType(int code)
{
    m_type = code;
    changed();
}

void Chart::setRow(int row)
{
    if (row < 1 || row > m_data.rows())
        throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("Row %1 of the chart.").arg(row));
    m_row = row;
}

void Chart::setColumn(int column)
{
    if (column < 1 || column > m_data.columns())
        throw RuntimeFailure(Failure::SubscriptOutOfRange, QStringLiteral("Column %1 of the chart.").arg(column));
    m_column = column;
}

void Chart::setRowLabel(const QString &label)
{
    m_data.rowLabels[m_row - 1] = label;
    changed();
}

void Chart::setColumnLabel(const QString &label)
{
    m_data.columnLabels[m_column - 1] = label;
    changed();
}

void Chart::setColumnUnit(const QString &unit)
{
    m_data.columnUnits[m_column - 1] = unit;
    changed();
}

void Chart::setRowsTitle(const QString &title)
{
    m_data.rowsTitle = title;
    changed();
}

void Chart::setData(const QString &text)
{
    m_data.write(m_row - 1, m_column - 1, text);
    changed();
}

void Chart::setTitleText(const QString &title)
{
    m_title = title;
    changed();
}

std::unique_ptr<ChartPlot> Chart::onPaper() const
{
    drawNow(); // it may just have been turned
    auto paper = std::make_unique<ChartPlot>();
    paper->setFont(font());
    paper->setTurn(m_plot->turn());
    paper->build(m_data, m_type, m_title, ChartColours::onPaper());
    return paper;
}

void Chart::EditCopy() const
{
    QGuiApplication::clipboard()->setImage(onPaper()->toPixmap(width(), height(), 2).toImage());
}

void Chart::paintOn(QPainter &painter, const QSizeF &size) const
{
    const double scale = size.width() / paperWidth;
    painter.save();
    painter.scale(scale, scale);
    onPaper()->paintVectors(painter, size / scale);
    painter.restore();
}

QRectF Chart::place(int row, int column) const
{
    drawNow();
    const QRectF onPlot = m_plot->place(row - 1, column - 1);
    return onPlot.isNull() ? onPlot : onPlot.translated(m_plot->pos());
}

ChartCell Chart::cellAt(const QPointF &place) const
{
    drawNow();
    return m_plot->cellAt(place - m_plot->pos());
}

QString Chart::tip(const QPointF &place) const
{
    const ChartCell cell = cellAt(place);
    return cell ? describe(m_data, cell) : QString();
}

bool Chart::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ToolTip: {
        const auto *help = static_cast<QHelpEvent *>(event);
        QToolTip::showText(help->globalPos(), tip(help->pos()), this);
        return true;
    }
    case QEvent::PaletteChange:
    case QEvent::FontChange:
        m_plot->setFont(font());
        changed();
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut: showMark(); break;
    default: break;
    }
    return QWidget::event(event);
}

void Chart::resizeEvent(QResizeEvent *) { m_plot->setGeometry(rect().adjusted(frame, frame, -frame, -frame)); }

void Chart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Base));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Chart::turnBy(const QPointF &moved)
{
    m_plot->setTurn(turnedBy(m_plot->turn(), moved));
    m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void Chart::mouseMoveEvent(QMouseEvent *event)
{
    const bool turns = ChartKindOf(m_type).depth && event->modifiers().testFlag(Qt::ControlModifier);
    if (turns && m_turned)
        turnBy(event->position() - *m_turned);
    if (turns && !m_turned)
        setCursor(Qt::SizeAllCursor);
    if (!turns && m_turned)
        unsetCursor();
    m_turned = turns ? std::optional(event->position()) : std::nullopt;
    QWidget::mouseMoveEvent(event);
}

void Chart::keyPressEvent(QKeyEvent *event)
{
    const QPoint way = wayOf(event->key());
    const bool home = event->key() == Qt::Key_Home, end = event->key() == Qt::Key_End;
    const ChartCell here = m_current ? m_current : firstDrawn();
    if (way.isNull() && !home && !end)
        QWidget::keyPressEvent(event);
    else if (!way.isNull() && ChartKindOf(m_type).depth && !event->modifiers().testFlag(Qt::ShiftModifier))
        turnBy(QPointF(way) * keyTurn);
    else if (home)
        walk({-1, here.column}, {1, 0});
    else if (end)
        walk({m_data.rows(), here.column}, {-1, 0});
    else if (m_current)
        walk(here, way);
    else
        walk({here.row - 1, here.column}, {1, 0});
}

ChartCell Chart::firstDrawn() const
{
    for (int row = 0; row < m_data.rows(); ++row)
        for (int column = 0; column < m_data.columns(); ++column)
            if (!place(row + 1, column + 1).isNull())
                return {row, column};
    return {};
}

/// Makes the next cell in that direction that is drawn the current one. If there is none, the current one stays.
void Chart::walk(ChartCell from, const QPoint &way)
{
    do {
        from = {from.row + way.x(), from.column + way.y()};
        if (from.row < 0 || from.row >= m_data.rows() || from.column < 0 || from.column >= m_data.columns())
            return;
    } while (place(from.row + 1, from.column + 1).isNull());
    m_current = from;
    showMark();
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(from.row * m_data.columns() + from.column);
    QAccessible::updateAccessibility(&event);
}

void Chart::showMark()
{
    const bool shown = m_current && hasFocus();
    m_plot->setMark(shown ? m_current : ChartCell(), shown ? describe(m_data, m_current) : QString());
}

void Chart::mouseReleaseEvent(QMouseEvent *event) { emit MouseUp(event->button(), event->globalPosition().toPoint()); }

// The menu key acts like the right mouse button, whose menu opens when the button is released.
void Chart::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard)
        emit MouseUp(Qt::RightButton, mapToGlobal(rect().center()));
}
