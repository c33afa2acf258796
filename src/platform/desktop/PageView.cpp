#include "platform/desktop/PageView.h"

#include <cmath>

#include <QPainter>
#include <QPaintEvent>
#include <QScrollBar>

namespace {

constexpr double gap = 14;
constexpr double overviewWidth = 150;
constexpr double leastZoom = 0.05, mostZoom = 8, wheelStep = 1.15;

} // namespace

PageView::PageView(PaintPage paint) : m_paint(std::move(paint))
{
    setFocusPolicy(Qt::StrongFocus);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // otherwise a zoom that fits would make it appear and disappear
    viewport()->setBackgroundRole(QPalette::Dark);
    verticalScrollBar()->setSingleStep(int(3 * gap));
    horizontalScrollBar()->setSingleStep(int(3 * gap));
}

void PageView::setPaper(const QSizeF &points)
{
    m_paper = points;
    m_pages = 0;
    m_page = 1;
    verticalScrollBar()->setValue(0);
    layOut(m_zoom);
}

void PageView::setPages(int pages)
{
    const bool begins = m_pages == 0;
    const bool inView = begins || placeOf(m_pages + 1).top() < viewport()->height();
    m_pages = pages;
    if (begins)
        layOut(m_zoom);
    else
        setRanges();
    if (inView)
        viewport()->update();
    emit moved();
}

QSizeF PageView::paperPixels() const
{
    return {m_paper.width() / 72 * logicalDpiX(), m_paper.height() / 72 * logicalDpiY()};
}

QSizeF PageView::cell() const { return paperPixels() * m_zoom + QSizeF(gap, gap); }

int PageView::columns() const
{
    switch (m_arrangement) {
    case Arrangement::Single: return 1;
    case Arrangement::Facing: return 2;
    default: return qMax(1, int((viewport()->width() - gap) / cell().width()));
    }
}

int PageView::firstColumn() const { return m_arrangement == Arrangement::Facing ? 1 : 0; }

int PageView::rows() const { return (m_pages + firstColumn() + columns() - 1) / columns(); }

QRectF PageView::placeOf(int page) const
{
    const int at = page - 1 + firstColumn();
    const double whole = columns() * cell().width() + gap;
    const double left = qMax(0.0, (viewport()->width() - whole) / 2) - horizontalScrollBar()->value();
    return {QPointF(left + gap + at % columns() * cell().width(),
                    gap + at / columns() * cell().height() - verticalScrollBar()->value()),
            paperPixels() * m_zoom};
}

double PageView::fittingZoom() const
{
    const QSizeF paper = paperPixels();
    if (m_arrangement == Arrangement::Overview)
        return overviewWidth / paper.width();
    const double wide = ((viewport()->width() - gap) / columns() - gap) / paper.width();
    const double high = (viewport()->height() - 2 * gap) / paper.height();
    return qBound(leastZoom, m_fit == Fit::Width ? wide : qMin(wide, high), mostZoom);
}

void PageView::layOut(double zoom)
{
    if (m_paper.isEmpty())
        return;
    // What is in the middle of the view stays there.
    const double middle = viewport()->height() / 2.0;
    const double rowsAbove = (verticalScrollBar()->value() + middle) / cell().height();
    m_zoom = m_fit == Fit::None && m_arrangement != Arrangement::Overview ? zoom : fittingZoom();
    setRanges();
    verticalScrollBar()->setValue(int(std::lround(rowsAbove * cell().height() - middle)));
    viewport()->update();
    emit moved();
}

void PageView::setRanges()
{
    const QSizeF whole = QSizeF(columns() * cell().width(), rows() * cell().height()) + QSizeF(gap, gap);
    const QSize shown = viewport()->size();
    verticalScrollBar()->setRange(0, qMax(0, int(std::ceil(whole.height())) - shown.height()));
    verticalScrollBar()->setPageStep(shown.height());
    horizontalScrollBar()->setRange(0, qMax(0, int(std::ceil(whole.width())) - shown.width()));
    horizontalScrollBar()->setPageStep(shown.width());
}

void PageView::goTo(int page)
{
    m_page = qBound(1, page, qMax(1, m_pages));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + int(std::lround(placeOf(m_page).top() - gap)));
    emit moved();
}

void PageView::zoomTo(double zoom)
{
    if (m_arrangement == Arrangement::Overview)
        m_arrangement = Arrangement::Single;
    m_fit = Fit::None;
    layOut(qBound(leastZoom, zoom, mostZoom));
}

void PageView::setFit(Fit fit)
{
    m_fit = fit;
    if (m_arrangement == Arrangement::Overview)
        m_arrangement = Arrangement::Single;
    const int page = m_page;
    layOut(m_zoom);
    goTo(page);
}

void PageView::arrange(Arrangement arrangement)
{
    if (m_arrangement == Arrangement::Overview && m_fit == Fit::None)
        m_fit = Fit::Page;
    m_arrangement = arrangement;
    const int page = m_page;
    layOut(m_zoom);
    goTo(page);
}

void PageView::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF seen = event->rect();
    const int firstRow = qMax(0, int((verticalScrollBar()->value() + seen.top() - gap) / cell().height()));
    for (int page = qMax(1, firstRow * columns() - firstColumn() + 1); page <= m_pages; ++page) {
        const QRectF place = placeOf(page);
        if (place.top() > seen.bottom())
            break;
        if (!place.intersects(seen))
            continue;
        painter.save();
        painter.fillRect(place, Qt::white);
        painter.setClipRect(place & seen);
        painter.setPen(Qt::black);
        m_paint(painter, page, place);
        painter.restore();
    }
}

void PageView::resizeEvent(QResizeEvent *) { layOut(m_zoom); }

void PageView::scrollContentsBy(int dx, int dy)
{
    viewport()->scroll(dx, dy);
    // The page is the one that was chosen as long as half of it is in view, else the first in the middle of the view.
    const QRectF view = viewport()->rect();
    const QRectF place = placeOf(m_page);
    if ((place & view).height() < qMin(place.height(), view.height()) / 2) {
        const int row = int((verticalScrollBar()->value() + view.height() / 2 - gap) / cell().height());
        m_page = qBound(1, row * columns() - firstColumn() + 1, qMax(1, m_pages));
    }
    emit moved();
}

void PageView::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() & Qt::ControlModifier)
        zoomTo(m_zoom * std::pow(wheelStep, event->angleDelta().y() / 120.0));
    else
        QAbstractScrollArea::wheelEvent(event);
}
