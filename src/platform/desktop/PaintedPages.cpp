#include "platform/desktop/PaintedPages.h"

#include <cerrno>

#include <QDir>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QHash>
#include <QLocale>
#include <QPdfWriter>
#include <QSaveFile>

#include "platform/core/RuntimeFailure.h"

namespace {

QPageLayout usualLayout()
{
    const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageLayout(QPageSize(american ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait, usualMargins,
                       QPageLayout::Millimeter);
}

/// The failure for an error of a file. Qt keeps the system's message but not its error number.
Failure failureOf(const QFileDevice &file)
{
    if (!QFileInfo(file.fileName()).absoluteDir().exists())
        return Failure::PathNotFound;
    for (const int full : {ENOSPC, EDQUOT, EFBIG})
        if (file.errorString() == qt_error_string(full))
            return Failure::DiskFull;
    return Failure::PermissionDenied;
}

class PdfPages : public PaintedPages
{
public:
    PdfPages(const QString &fileName, const QPageLayout &layout) : m_file(fileName), m_writer(&m_file)
    {
        if (!m_file.open(QIODevice::WriteOnly))
            throw failure();
        m_writer.setPageLayout(layout);
        m_writer.setResolution(usualResolution);
        m_writer.setCreator(QStringLiteral("Ostrelmark"));
    }
    ~PdfPages() override
    {
        if (m_painter.isActive())
            m_painter.end(); // the document was abandoned, and the file was not committed
    }
    QString whereTo() const override { return u"written to \"" + m_file.fileName() + u'"'; }
    void newPage() override
    {
        if (m_file.error() != QFileDevice::NoError)
            throw failure(); // now and not after the last page
        PaintedPages::newPage();
    }
    void endDocument() override
    {
        PaintedPages::endDocument();
        if (!m_file.flush() || m_file.error() != QFileDevice::NoError || !m_file.commit())
            throw failure();
    }

protected:
    QPagedPaintDevice &device() const override { return const_cast<QPdfWriter &>(m_writer); }
    void setTitle(const QString &title) override { m_writer.setTitle(title); }

private:
    RuntimeFailure failure()
    {
        if (m_file.isOpen())
            m_file.flush(); // a write that was only partly done gives no reason, but the next one does
        return RuntimeFailure(
            failureOf(m_file),
            QStringLiteral("\"%1\" could not be written: %2").arg(m_file.fileName(), m_file.errorString()));
    }
    QSaveFile m_file;
    QPdfWriter m_writer;
};

} // namespace

void PaintedPages::setLandscape(bool landscape)
{
    device().setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
}

/// A font of the report as it is on this device, and the widths of texts in it, because most texts of a report come
/// again and again.
struct PaintedPages::MadeFont
{
    PageFont asked;
    QFont font;
    QFontMetricsF metrics;
    QHash<QString, double> widths = {};

    double width(const QString &text)
    {
        constexpr qsizetype most = 4096;
        if (widths.size() >= most)
            widths.clear();
        const auto known = widths.constFind(text);
        return known != widths.cend() ? *known : *widths.insert(text, metrics.horizontalAdvance(text));
    }
};

PaintedPages::PaintedPages() = default;
PaintedPages::~PaintedPages() = default;

PaintedPages::MadeFont &PaintedPages::made(const PageFont &font) const
{
    for (const auto &made : m_fonts)
        if (made->asked == font)
            return *made;
    const QFont made = FontOf(font);
    m_fonts.push_back(std::make_unique<MadeFont>(MadeFont{font, made, QFontMetricsF(made, &device())}));
    return *m_fonts.back();
}

double PaintedPages::textWidth(const PageFont &font, const QString &text) const { return made(font).width(text); }

double PaintedPages::lineHeight(const PageFont &font) const { return made(font).metrics.lineSpacing(); }

void PaintedPages::beginDocument(const QString &title)
{
    setTitle(title);
    m_fontInUse = nullptr;
    if (!m_painter.begin(&device()))
        throw RuntimeFailure(Failure::DeviceError, QStringLiteral("\"%1\" could not be printed.").arg(title));
}

void PaintedPages::newPage()
{
    if (!device().newPage())
        throw RuntimeFailure(Failure::DeviceError, QStringLiteral("The printer took no further page."));
}

void PaintedPages::endDocument() { m_painter.end(); }

void PaintedPages::text(double x, double y, const PageFont &font, const QString &text)
{
    const MadeFont &made = this->made(font);
    if (&made != std::exchange(m_fontInUse, &made))
        m_painter.setFont(made.font);
    m_painter.drawText(QPointF(x, y + made.metrics.ascent()), text);
}

void PaintedPages::line(double x1, double y1, double x2, double y2)
{
    m_painter.setPen(LinePen(device().logicalDpiX()));
    m_painter.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void PaintedPages::picture(double x, double y, const QSizeF &size, const PagePicture &paint)
{
    m_painter.save();
    m_painter.translate(x, y);
    paint(m_painter, size);
    m_painter.restore();
}

QFont FontOf(const PageFont &font)
{
    QFont made(font.name);
    made.setPointSizeF(font.size);
    made.setBold(font.bold);
    made.setItalic(font.italic);
    made.setUnderline(font.underline);
    return made;
}

QPen LinePen(int dotsAnInch) { return QPen(Qt::black, dotsAnInch / 96.0); }

std::unique_ptr<PageSink> PagesInPdf(const QString &fileName, const std::optional<QPageLayout> &layout)
{
    return std::make_unique<PdfPages>(fileName, layout.value_or(usualLayout()));
}
