#include "platform/desktop/Paper.h"

#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRadioButton>

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

    QString whereTo() const override { return u"sent to the printer \"" + m_printer->printerName() + u'"'; }

protected:
    QPagedPaintDevice &device() const override { return *m_printer; }
    void setTitle(const QString &title) override { m_printer->setDocName(title); }

private:
    std::shared_ptr<QPrinter> m_printer;
};

/// Hides the dialog's box for single pages such as "2,4". Qt 6.4 refuses every text in it, because it looks at the
/// printer's former pages instead. "Pages from ... to" remains.
void hideSinglePages(const QPrintDialog &dialog)
{
    if (auto *option = dialog.findChild<QRadioButton *>(QStringLiteral("pagesRadioButton")))
        option->hide();
    if (auto *pages = dialog.findChild<QLineEdit *>(QStringLiteral("pagesLineEdit")))
        pages->hide();
}

} // namespace

bool HasPrinters() { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

std::shared_ptr<QPrinter> PrinterFor(const PrintDialogRequest &request)
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setResolution(usualResolution);
    printer->setDocName(request.documentName);
    printer->setPageMargins(usualMargins, QPageLayout::Millimeter);
    printer->setPageOrientation(request.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    return printer;
}

std::optional<PrintDialogAnswer> AskPrinter(QWidget *parent, const PrintDialogRequest &request,
                                            std::shared_ptr<QPrinter> printer)
{
    QPrintDialog dialog(printer.get(), parent);
    dialog.setWindowTitle(request.title);
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    hideSinglePages(dialog);
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
