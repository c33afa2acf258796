#include "platform/desktop/Paper.h"

#include <QAction>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPrintPreviewDialog>

#include "platform/controls/Guarded.h"
#include "platform/desktop/PaintedPages.h"

namespace {

class PrinterPages : public PaintedPages
{
public:
    explicit PrinterPages(std::shared_ptr<QPrinter> printer) : m_printer(std::move(printer)) {}
    ~PrinterPages() override
    {
        if (!m_painter.isActive())
            return;
        m_printer->abort(); // the document was abandoned
        m_painter.end();
    }

protected:
    QPagedPaintDevice &device() const override { return *m_printer; }
    void setTitle(const QString &title) override { m_printer->setDocName(title); }

private:
    std::shared_ptr<QPrinter> m_printer;
};

/// Replaces what the preview's "Print" button does. Qt asks about an existing PDF before it adds the suffix to the
/// name, and prints all copies as one document.
void replacePrint(QPrintPreviewDialog &dialog, const std::function<void()> &print)
{
    for (QAction *action : dialog.findChildren<QAction *>()) {
        if (action->text() != QPrintPreviewDialog::tr("Print"))
            continue;
        action->disconnect(&dialog);
        QObject::connect(action, &QAction::triggered, &dialog, guarded(print));
    }
}

} // namespace

bool HasPrinters() { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

std::shared_ptr<QPrinter> PrinterFor(const PrintDialogRequest &request)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(request.documentName);
    printer->setPageOrientation(request.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    return printer;
}

std::optional<PrintDialogAnswer> AskPrinter(QWidget *parent, const PrintDialogRequest &request,
                                            std::shared_ptr<QPrinter> printer)
{
    QPrintDialog dialog(printer.get(), parent);
    dialog.setWindowTitle(request.title);
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const int copies = qMax(1, printer->copyCount());
    printer->setCopyCount(1);
    return PrintDialogAnswer{copies, printer->fromPage(), printer->toPage(), {std::move(printer), {}}};
}

std::unique_ptr<PageSink> PagesOnPrinter(std::shared_ptr<QPrinter> printer)
{
    return std::make_unique<PrinterPages>(printer ? std::move(printer) : PrinterFor({}));
}

std::optional<PrintDialogAnswer> ShowPreview(QWidget *parent, const PreviewRequest &request, const AskWhere &where)
{
    const auto printer = PrinterFor(request.printing);
    QPrintPreviewDialog dialog(printer.get(), parent);
    dialog.setWindowTitle(request.printing.documentName);
    dialog.resize(900, 700);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&] { request.print(*PagesOnPrinter(printer)); });
    std::optional<PrintDialogAnswer> answer;
    replacePrint(dialog, [&] {
        answer = where(printer);
        if (!answer)
            return;
        answer->target.printer = printer;
        answer->target.keepsOrientation = true;
        dialog.accept();
    });
    dialog.exec();
    return answer;
}
