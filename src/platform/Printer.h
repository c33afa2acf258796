// A page with the verbs that reports are written in: a position, a font, text that ends its line or stays on it, lines,
// pages, and an end of the document. The document begins with the first thing printed, so that a report without rows
// leaves nothing. The page feeds itself where a line would pass its foot: without a heading, and the next page has its
// whole height.
#pragma once

#include <vector>

#include <QStringList>

#include "platform/Pages.h"

/// One cell of a printed row: its text wraps between its edges, and none of it is cut.
struct PrintCell
{
    double left;
    double right;
    QString text;        ///< may hold line breaks
    bool shrink = false; ///< each of its lines whole, in a smaller size if need be
};

class Printer
{
public:
    /// Prints documents of that title on pages that must live longer.
    Printer(PageSink &pages, const QString &title) : m_pages(pages), m_title(title) {}

    double ScaleWidth() const { return m_pages.width(); }
    double ScaleHeight() const { return m_pages.height(); }
    bool Landscape() const { return m_landscape; }
    void setLandscape(bool landscape);

    double CurrentX = 0;
    double CurrentY = 0;
    PageFont Font;

    double TextWidth(const QString &text) const { return m_pages.textWidth(Font, text); }
    double LineHeight() const { return m_pages.lineHeight(Font); }

    /// Prints at the current position and ends the line.
    void Print(const QString &text);
    /// Prints and stays behind the text.
    void PrintOn(const QString &text);
    void Line(double x1, double y1, double x2, double y2);
    /// Paints a picture on this page; the position stays.
    void PaintPicture(double x, double y, double width, double height, const PagePicture &paint);
    /// Cells side by side, as high as the highest; kept on one page unless higher than a page. Ends the line.
    void PrintRow(const std::vector<PrintCell> &cells);
    void NewPage();
    /// Ends the document, if anything was printed.
    void EndDoc();

    /// The foot of this page: lines that would pass it go to the next page. Lapses with the page.
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
