#include "platform/Paper.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPrintPreviewDialog>

#include "platform/PaintedPages.h"

namespace {

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

} // namespace

bool HasPrinters() { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

std::optional<PrintDialogAnswer> AskPrinter(QWidget *parent, const PrintDialogRequest &request)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(request.documentName);
    printer.setPageOrientation(request.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(request.title);
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return PrintDialogAnswer{
        qMax(1, printer.copyCount()), printer.fromPage(), printer.toPage(), printer.printerName(), {}};
}

std::unique_ptr<PageSink> PagesOnPrinter(const QString &printerName)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPrinterName(printerName);
    return std::make_unique<PrinterPages>(std::move(printer));
}

std::unique_ptr<PageSink> PagesOnPrinter(QPrinter &printer) { return std::make_unique<PrinterPages>(printer); }

void ShowPreview(QWidget *parent, const PreviewRequest &request)
{
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog dialog(&printer, parent);
    dialog.setWindowTitle(request.title);
    dialog.resize(900, 700);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&request](QPrinter *pages) { request.print(*PagesOnPrinter(*pages)); });
    dialog.exec();
}
