// The interface that reports print with: a current position, a font, text with or without a line break, lines, pages,
// and the end of the document. The document begins with the first thing printed, so that a report without rows prints
// nothing. A line that would pass the foot of the page goes to a new page, which has no heading and is used to its full
// height.
#pragma once

#include <functional>
#include <vector>

#include <QStringList>

#include "platform/core/Pages.h"

/// One cell of a printed row. Its text is wrapped between its edges and never cut off.
struct PrintCell
{
    double left;
    double right;
    QString text;        ///< may contain line breaks
    bool shrink = false; ///< do not wrap; make the font smaller until each line fits
};

class Printer
{
public:
    /// Prints documents with that title. The pages must outlive this object.
    Printer(PageSink &pages, const QString &title) : m_pages(pages), m_title(title) {}

    double ScaleWidth() const { return m_pages.width(); }
    double ScaleHeight() const { return m_pages.height(); }
    bool Landscape() const { return m_landscape; }
    void setLandscape(bool landscape);

    /// A report calls this after each of its entries, with how many it has printed and how many there are.
    std::function<void(qint64 done, qint64 of)> Progress = [](qint64, qint64) {};

    double CurrentX = 0;
    double CurrentY = 0;
    PageFont Font;

    double TextWidth(const QString &text) const { return m_pages.textWidth(Font, text); }
    double LineHeight() const { return m_pages.lineHeight(Font); }

    /// Prints at the current position and ends the line.
    void Print(const QString &text);
    /// Prints without ending the line; the position is then after the text.
    void PrintOn(const QString &text);
    void Line(double x1, double y1, double x2, double y2);
    /// Paints a picture on this page; the current position does not change.
    void PaintPicture(double x, double y, double width, double height, const PagePicture &paint);
    /// Prints cells side by side; the row is as high as its highest cell. It is kept on one page unless it is higher
    /// than a page. Ends the line.
    void PrintRow(const std::vector<PrintCell> &cells);
    void NewPage();
    /// Ends the document, if anything was printed.
    void EndDoc();

    /// Sets the foot of this page: lines that would pass it go to the next page. It does not apply to later pages.
    void setFoot(double y) { m_foot = y; }

private:
    struct LaidOut
    {
        double left;
        PageFont font;
        QStringList lines;
    };
    LaidOut layOut(const PrintCell &cell) const;
    QStringList wrap(const QString &text, double width) const;
    void begin();
    double foot() const { return m_foot > 0 ? m_foot : m_pages.height(); }
    void feedFor(double height);

    PageSink &m_pages;
    QString m_title;
    bool m_begun = false;
    bool m_landscape = false;
    double m_foot = 0;
};
