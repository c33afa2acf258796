// A printer of 100 dots per inch that records what was printed where, page by page. Each letter is half as wide as its
// font is high, so that a test can calculate widths. A page is 8 x 10 inches, or 10 x 8 in landscape.
#pragma once

#include <algorithm>
#include <vector>

#include <QRectF>

#include "platform/core/Pages.h"

struct PrintedText
{
    double x, y, right, bottom;
    PageFont font;
    QString text;
};

struct PrintedPage
{
    std::vector<PrintedText> texts;
    std::vector<QRectF> pictures;

    const PrintedText *find(const QString &text) const
    {
        const auto found = std::ranges::find(texts, text, &PrintedText::text);
        return found == texts.end() ? nullptr : &*found;
    }
};

struct PrintedDocument
{
    QString title;
    bool landscape = false;
    bool ended = false;
    std::vector<PrintedPage> pages;
};

class RecordedPages : public PageSink
{
public:
    explicit RecordedPages(std::vector<PrintedDocument> &documents) : m_documents(documents) {}

    QString whereTo() const override { return QStringLiteral("sent to the printer"); }
    void setLandscape(bool landscape) override { m_landscape = landscape; }
    double width() const override { return m_landscape ? 1000 : 800; }
    double height() const override { return m_landscape ? 800 : 1000; }
    double textWidth(const PageFont &font, const QString &text) const override
    {
        return pixels(font) / 2 * double(text.size());
    }
    double lineHeight(const PageFont &font) const override { return pixels(font) * 1.2; }
    void beginDocument(const QString &title) override
    {
        m_documents.push_back({title, m_landscape, false, {PrintedPage()}});
    }
    void newPage() override { m_documents.back().pages.emplace_back(); }
    void endDocument() override { m_documents.back().ended = true; }
    void text(double x, double y, const PageFont &font, const QString &text) override
    {
        page().texts.push_back({x, y, x + textWidth(font, text), y + pixels(font), font, text});
    }
    void line(double, double, double, double) override {}
    void picture(double x, double y, const QSizeF &size, const PagePicture &) override
    {
        page().pictures.push_back(QRectF(QPointF(x, y), size));
    }

private:
    static double pixels(const PageFont &font) { return font.size * 100 / 72; }
    PrintedPage &page() { return m_documents.back().pages.back(); }

    std::vector<PrintedDocument> &m_documents;
    bool m_landscape = false;
};
