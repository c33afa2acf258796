// Draws one page of a report on the screen, for the preview. The painter is scaled to the dots of the paper. What is
// out of sight is skipped.
#pragma once

#include <optional>

#include <QPainter>

#include "platform/core/Pages.h"

class ScreenPage : public PageSink
{
public:
    /// The painter must outlive this object, and its clip must be the part of the page that is in sight.
    ScreenPage(QPainter &painter, int dotsAnInch);

    void text(double x, double y, const PageFont &font, const QString &text) override;
    void line(double x1, double y1, double x2, double y2) override;
    void picture(double x, double y, const QSizeF &size, const PagePicture &paint) override;

    // The layout of the page is already known (PageSpool), so nothing is measured here.
    QString whereTo() const override { return {}; }
    void setLandscape(bool) override {}
    double width() const override { return 0; }
    double height() const override { return 0; }
    double textWidth(const PageFont &, const QString &) const override { return 0; }
    double lineHeight(const PageFont &) const override { return 0; }
    void beginDocument(const QString &) override {}
    void newPage() override {}
    void endDocument() override {}

private:
    QPainter &m_painter;
    const int m_dots;
    const double m_letters; ///< how much larger letters are in dots of the paper than in pixels of the screen
    const QRectF m_seen;
    std::optional<PageFont> m_font; ///< in use; none before the first text
    double m_ascent = 0, m_height = 0;
};
