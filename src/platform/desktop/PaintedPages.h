// Pages that are painted with QPainter, on a printer or into a PDF. Reports reach them through Printer.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QPagedPaintDevice>
#include <QPageLayout>
#include <QPainter>

#include "platform/core/Pages.h"

/// The common base of the pages of a printer and of a PDF.
class PaintedPages : public PageSink
{
public:
    PaintedPages();
    ~PaintedPages() override;
    void setLandscape(bool landscape) override;
    double width() const override { return device().width(); }
    double height() const override { return device().height(); }
    double textWidth(const PageFont &font, const QString &text) const override;
    double lineHeight(const PageFont &font) const override;
    void beginDocument(const QString &title) override;
    void newPage() override;
    void endDocument() override;
    void text(double x, double y, const PageFont &font, const QString &text) override;
    void line(double x1, double y1, double x2, double y2) override;
    void picture(double x, double y, const QSizeF &size, const PagePicture &paint) override;

protected:
    virtual QPagedPaintDevice &device() const = 0;
    virtual void setTitle(const QString &title) = 0;
    QPainter m_painter;

private:
    struct MadeFont;
    MadeFont &made(const PageFont &font) const;

    mutable std::vector<std::unique_ptr<MadeFont>> m_fonts; ///< a report has a dozen
    const MadeFont *m_fontInUse = nullptr;
};

/// A PDF and a printer begin with the same margins, in millimetres, and dots an inch, so that the same report has the
/// same pages on both and in the preview: the height of a line is rounded to the dots.
inline constexpr QMarginsF usualMargins(12, 12, 12, 12);
inline constexpr int usualResolution = 1200;

QFont FontOf(const PageFont &font);
/// The pen of the lines, for paper of that resolution.
QPen LinePen(int dotsAnInch);

/// Pages in a PDF file, which appears when its document has ended. Without a layout they have the usual paper. This
/// function and endDocument() throw PermissionDenied, PathNotFound or DiskFull.
std::unique_ptr<PageSink> PagesInPdf(const QString &fileName, const std::optional<QPageLayout> &layout = {});
