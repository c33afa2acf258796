#include "windows/shell/Arrange.h"

#include <algorithm>

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStyle>

namespace {

QList<QMdiSubWindow *> childrenOf(QMdiArea &area, bool minimised, QMdiArea::WindowOrder order = QMdiArea::CreationOrder)
{
    QList<QMdiSubWindow *> found;
    for (QMdiSubWindow *frame : area.subWindowList(order))
        if (frame->isVisible() && frame->isMinimized() == minimised)
            found << frame;
    return found;
}

constexpr char tiledSize[] = "tiledSize";

} // namespace

bool WasTiled(const QMdiSubWindow &frame) { return frame.property(tiledSize).toSize() == frame.size(); }

void CascadeWindows(QMdiArea &area)
{
    const QSize room = area.viewport()->size();
    const int step = area.style()->pixelMetric(QStyle::PM_TitleBarHeight) + 2;
    int place = 0;
    for (QMdiSubWindow *frame : childrenOf(area, false, QMdiArea::StackingOrder)) {
        frame->showNormal();
        frame->setGeometry(QRect(QPoint(place, place), frame->size().boundedTo(room - QSize(place, place))));
        frame->raise();
        place = place < room.height() / 2 ? place + step : 0;
    }
}

void TileWindows(QMdiArea &area, Qt::Orientation bars)
{
    const auto frames = childrenOf(area, false);
    const QSize room = area.viewport()->size();
    const auto count = static_cast<int>(frames.size());
    QPoint next; // further than its share if those before need more than theirs; the area then scrolls
    for (int i = 0; i < count; ++i) {
        frames[i]->showNormal();
        if (bars == Qt::Horizontal) {
            next.setY(std::max(next.y(), room.height() * i / count));
            frames[i]->setGeometry(0, next.y(), room.width(), room.height() / count);
            next.ry() += frames[i]->height();
        } else {
            next.setX(std::max(next.x(), room.width() * i / count));
            frames[i]->setGeometry(next.x(), 0, room.width() / count, room.height());
            next.rx() += frames[i]->width();
        }
        frames[i]->setProperty(tiledSize, frames[i]->size());
    }
}

void ArrangeIcons(QMdiArea &area)
{
    const QSize room = area.viewport()->size();
    QPoint place(0, room.height());
    for (QMdiSubWindow *frame : childrenOf(area, true)) {
        if (place.x() + frame->width() > room.width() && place.x() > 0)
            place = QPoint(0, place.y() - frame->height());
        frame->move(place.x(), place.y() - frame->height());
        place.rx() += frame->width();
    }
}
