// Pages of paper under each other, side by side in pairs, or small as an overview, at any zoom. Knows only the size of
// the paper and how many pages there are; what is on a page is painted when it comes into view. Used by the preview.
#pragma once

#include <functional>

#include <QAbstractScrollArea>

class PageView : public QAbstractScrollArea
{
    Q_OBJECT
public:
    enum class Fit { None, Width, Page };
    enum class Arrangement { Single, Facing, Overview };
    /// Paints a page, counted from 1, into that place of the view.
    using PaintPage = std::function<void(QPainter &painter, int page, const QRectF &place)>;

    explicit PageView(PaintPage paint);

    /// Begins again without pages. The size is in points.
    void setPaper(const QSizeF &points);
    void setPages(int pages);
    int pages() const { return m_pages; }
    int page() const { return m_page; }
    double zoom() const { return m_zoom; } ///< 1: as large as on paper
    Fit fit() const { return m_fit; }

    void goTo(int page);
    void zoomTo(double zoom);
    void setFit(Fit fit);
    void arrange(Arrangement arrangement);

signals:
    void moved(); ///< to another page or zoom

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QSizeF paperPixels() const; ///< at zoom 1
    QSizeF cell() const;        ///< a page and the gap before it, in pixels
    int columns() const;
    int rows() const;
    int firstColumn() const; ///< of the first page: as in a book, it is on the right
    QRectF placeOf(int page) const;
    double fittingZoom() const;
    void layOut(double zoom); ///< the zoom is for pages that do not fit themselves
    void setRanges();

    PaintPage m_paint;
    QSizeF m_paper;
    int m_pages = 0;
    int m_page = 1;
    double m_zoom = 1;
    Fit m_fit = Fit::Page;
    Arrangement m_arrangement = Arrangement::Single;
};
