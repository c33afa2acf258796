#include "platform/PaintedPages.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

#include "platform/RuntimeFailure.h"

namespace {

constexpr int pdfResolution = 600; // dots an inch

QFont fontOf(const PageFont &font)
{
    QFont made(font.name);
    made.setPointSizeF(font.size);
    made.setBold(font.bold);
    made.setItalic(font.italic);
    made.setUnderline(font.underline);
    return made;
}

/// What a printer and a PDF have in common.
class PaintedPages : public PageSink
{
public:
    void setLandscape(bool landscape) override
    {
        if (m_ended)
            return; // a preview asks the device how its pages lie when all are painted
        device().setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    }
    double width() const override { return device().width(); }
    double height() const override { return device().height(); }
    double textWidth(const PageFont &font, const QString &text) const override
    {
        return metrics(font).horizontalAdvance(text);
    }
    double lineHeight(const PageFont &font) const override { return metrics(font).lineSpacing(); }

    void beginDocument(const QString &title) override
    {
        setTitle(title);
        if (!m_painter.begin(&device()))
            throw RuntimeFailure(Failure::DeviceError, QStringLiteral("\"%1\" could not be printed.").arg(title));
    }
    void newPage() override
    {
        if (!device().newPage())
            throw RuntimeFailure(Failure::DeviceError, QStringLiteral("The printer took no further page."));
    }
    void endDocument() override
    {
        m_painter.end();
        m_ended = true;
    }
    void text(double x, double y, const PageFont &font, const QString &text) override
    {
        m_painter.setFont(fontOf(font));
        m_painter.drawText(QPointF(x, y + metrics(font).ascent()), text);
    }
    void line(double x1, double y1, double x2, double y2) override
    {
        m_painter.setPen(QPen(Qt::black, device().logicalDpiX() / 96.0));
        m_painter.drawLine(QPointF(x1, y1), QPointF(x2, y2));
    }
    void picture(double x, double y, const QSizeF &size, const PagePicture &paint) override
    {
        m_painter.save();
        m_painter.translate(x, y);
        paint(m_painter, size);
        m_painter.restore();
    }

protected:
    virtual QPagedPaintDevice &device() const = 0;
    virtual void setTitle(const QString &title) = 0;
    QPainter m_painter;

private:
    bool m_ended = false;
    QFontMetricsF metrics(const PageFont &font) const { return QFontMetricsF(fontOf(font), &device()); }
};

class PrinterPages : public PaintedPages
{
public:
    explicit PrinterPages(QPrinter &printer) : m_printer(printer) {}
    explicit PrinterPages(std::unique_ptr<QPrinter> printer) : m_owned(std::move(printer)), m_printer(*m_owned) {}
    ~PrinterPages() override
    {
        if (!m_painter.isActive())
            return;
        m_printer.abort(); // given up half-way
        m_painter.end();
    }

protected:
    QPagedPaintDevice &device() const override { return m_printer; }
    void setTitle(const QString &title) override { m_printer.setDocName(title); }

private:
    std::unique_ptr<QPrinter> m_owned;
    QPrinter &m_printer;
};

class PdfPages : public PaintedPages
{
public:
    explicit PdfPages(const QString &fileName) : m_file(fileName), m_writer(&m_file)
    {
        if (!m_file.open(QIODevice::WriteOnly))
            throw failure();
        const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
        m_writer.setPageSize(QPageSize(american ? QPageSize::Letter : QPageSize::A4));
        m_writer.setPageMargins(QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter);
        m_writer.setResolution(pdfResolution);
        m_writer.setCreator(QStringLiteral("Ostrelmark"));
    }
    ~PdfPages() override
    {
        if (m_painter.isActive())
            m_painter.end(); // given up half-way: the file was not committed
    }
    void endDocument() override
    {
        PaintedPages::endDocument();
        if (!m_file.commit())
            throw failure();
    }

protected:
    QPagedPaintDevice &device() const override { return const_cast<QPdfWriter &>(m_writer); }
    void setTitle(const QString &title) override { m_writer.setTitle(title); }

private:
    RuntimeFailure failure() const
    {
        return RuntimeFailure(
            Failure::PermissionDenied,
            QStringLiteral("\"%1\" could not be written: %2").arg(m_file.fileName(), m_file.errorString()));
    }
    QSaveFile m_file;
    QPdfWriter m_writer;
};

} // namespace

std::unique_ptr<PageSink> PagesOnPrinter(QPrinter &printer) { return std::make_unique<PrinterPages>(printer); }

std::unique_ptr<PageSink> PagesOnPrinter(const QString &printerName)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPrinterName(printerName);
    return std::make_unique<PrinterPages>(std::move(printer));
}

std::unique_ptr<PageSink> PagesInPdf(const QString &fileName) { return std::make_unique<PdfPages>(fileName); }
