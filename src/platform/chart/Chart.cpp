#include "platform/chart/Chart.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "platform/chart/ChartPlot.h"
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

} // namespace

Chart::Chart(QWidget *parent) : QWidget(parent), m_plot(new ChartPlot(this))
{
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
        this, [this] { drawNow(); }, Qt::QueuedConnection);
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
    changed();
}

void Chart::setRowCount(int count)
{
    m_data.resize(count, m_data.columns());
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

QString Chart::tip(const QPointF &place) const
{
    drawNow();
    const ChartCell cell = m_plot->cellAt(place - m_plot->pos());
    if (!cell)
        return {};
    return m_data.rowLabels.at(cell.row) + u'\n' + m_data.columnLabels.at(cell.column) + QStringLiteral(": ") +
           m_data.text(cell.row, cell.column);
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
    const bool across = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    const bool along = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (!ChartKindOf(m_type).depth || (!across && !along)) {
        QWidget::keyPressEvent(event);
        return;
    }
    const double step = event->key() == Qt::Key_Left || event->key() == Qt::Key_Up ? -keyTurn : keyTurn;
    turnBy(across ? QPointF(step, 0) : QPointF(0, step));
}

void Chart::mouseReleaseEvent(QMouseEvent *event) { emit MouseUp(event->button(), event->globalPosition().toPoint()); }

// The menu key acts like the right mouse button, whose menu opens when the button is released.
void Chart::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard)
        emit MouseUp(Qt::RightButton, mapToGlobal(rect().center()));
}
