#include "platform/controls/EmptyText.h"

#include <QCoreApplication>
#include <QPainter>
#include <QScopedValueRollback>

namespace {

constexpr int lettersInLine = 75;
constexpr int margin = 12;

/// Rows and children also disappear while their place is being destroyed, when it can no longer be asked. The check
/// therefore waits for the event loop.
constexpr Qt::ConnectionType later = Qt::QueuedConnection;

} // namespace

EmptyText::EmptyText(QAbstractItemView &list, const QString &text) :
    EmptyText(
        list, *list.viewport(), [&list] { return list.model()->rowCount() == 0; }, text)
{
    const QAbstractItemModel *model = list.model();
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyText::refresh, later);
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(model, change, this, &EmptyText::refresh, later);
}

EmptyText::EmptyText(QWidget &place, QWidget &canvas, std::function<bool()> isEmpty, const QString &text) :
    QObject(&place), m_place(place), m_canvas(canvas), m_isEmpty(std::move(isEmpty))
{
    canvas.installEventFilter(this);
    setText(text);
}

void EmptyText::setText(const QString &text)
{
    m_text = text;
    refresh();
}

void EmptyText::refresh()
{
    const QString shown = m_isEmpty() ? m_text : QString();
    if (shown == m_shown)
        return;
    if (!shown.isEmpty() || m_place.accessibleDescription() == m_shown) // it may have another one by now
        m_place.setAccessibleDescription(shown);
    m_shown = shown;
    m_canvas.update();
}

bool EmptyText::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildRemoved)
        QMetaObject::invokeMethod(this, &EmptyText::refresh, later);
    if (event->type() != QEvent::Paint || m_painting || m_text.isEmpty() || !m_isEmpty())
        return false;
    const QScopedValueRollback inside(m_painting, true);
    QCoreApplication::sendEvent(object, event); // the place paints its own ground first
    paint();
    return true;
}

void EmptyText::paint() const
{
    const QFontMetrics letters = m_canvas.fontMetrics();
    const int width = qMin(m_canvas.width() - 2 * margin, lettersInLine * letters.averageCharWidth());
    const QRect place((m_canvas.width() - width) / 2, margin, width, m_canvas.height() - 2 * margin);
    QPainter painter(&m_canvas);
    painter.setPen(m_place.palette().color(QPalette::PlaceholderText));
    painter.drawText(place, int(Qt::AlignCenter) | int(Qt::TextWordWrap), m_text);
}
