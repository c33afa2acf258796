#include "platform/core/Printer.h"

#include <algorithm>

namespace {

constexpr double smallestSize = 4; // points
constexpr double sizeStep = 0.5;

} // namespace

void Printer::setLandscape(bool landscape)
{
    m_landscape = landscape;
    m_pages.setLandscape(landscape);
}

void Printer::begin()
{
    if (m_begun)
        return;
    m_pages.beginDocument(m_title);
    m_begun = true;
}

void Printer::feedFor(double height)
{
    begin();
    if (CurrentY > 0 && CurrentY + height > foot()) {
        const double x = CurrentX;
        NewPage();
        CurrentX = x;
    }
}

void Printer::PrintOn(const QString &text)
{
    feedFor(LineHeight());
    if (!text.isEmpty())
        m_pages.text(CurrentX, CurrentY, Font, text);
    CurrentX += TextWidth(text);
}

void Printer::Print(const QString &text)
{
    PrintOn(text);
    CurrentX = 0;
    CurrentY += LineHeight();
}

void Printer::Line(double x1, double y1, double x2, double y2)
{
    begin();
    m_pages.line(x1, y1, x2, y2);
}

void Printer::PaintPicture(double x, double y, double width, double height, const PagePicture &paint)
{
    begin();
    m_pages.picture(x, y, QSizeF(width, height), paint);
}

QStringList Printer::wrap(const QString &text, double width) const
{
    QStringList lines;
    for (QString rest : text.split(u'\n')) {
        while (!rest.isEmpty() && TextWidth(rest) > width) {
            // Finds the longest start that fits by bisection, and cuts it at its last blank, or within a word that is
            // wider than the cell.
            qsizetype fits = 1;
            for (qsizetype beyond = rest.size(); beyond - fits > 1;) {
                const qsizetype middle = (fits + beyond) / 2;
                (TextWidth(rest.left(middle)) <= width ? fits : beyond) = middle;
            }
            const qsizetype blank = rest.lastIndexOf(u' ', fits);
            const qsizetype cut = blank > 0 ? blank : fits;
            lines << rest.left(cut);
            rest = rest.mid(cut);
            if (blank > 0)
                rest.remove(0, 1);
        }
        lines << rest;
    }
    return lines;
}

Printer::LaidOut Printer::layOut(const PrintCell &cell) const
{
    if (!cell.shrink)
        return {cell.left, Font, wrap(cell.text, cell.right - cell.left)};
    LaidOut laid{cell.left, Font, cell.text.split(u'\n')};
    const auto tooWide = [&](const QString &line) {
        return m_pages.textWidth(laid.font, line) > cell.right - cell.left;
    };
    while (laid.font.size > smallestSize && std::any_of(laid.lines.cbegin(), laid.lines.cend(), tooWide))
        laid.font.size -= sizeStep;
    return laid;
}

void Printer::PrintRow(const std::vector<PrintCell> &cells)
{
    std::vector<LaidOut> columns;
    qsizetype height = 1;
    for (const PrintCell &cell : cells) {
        columns.push_back(layOut(cell));
        height = std::max(height, columns.back().lines.size());
    }
    const double whole = double(height) * LineHeight();
    if (whole <= m_pages.height())
        feedFor(whole);
    for (qsizetype i = 0; i < height; ++i) {
        feedFor(LineHeight());
        for (const LaidOut &column : columns) {
            const double lower =
                LineHeight() - m_pages.lineHeight(column.font); // smaller letters have the same baseline
            if (i < column.lines.size() && !column.lines[i].isEmpty())
                m_pages.text(column.left, CurrentY + lower, column.font, column.lines[i]);
        }
        CurrentX = 0;
        CurrentY += LineHeight();
    }
}

void Printer::NewPage()
{
    begin();
    m_pages.newPage();
    CurrentX = 0;
    CurrentY = 0;
    m_foot = 0;
}

void Printer::EndDoc()
{
    if (m_begun)
        m_pages.endDocument();
    m_begun = false;
    CurrentX = 0;
    CurrentY = 0;
    m_foot = 0;
}
