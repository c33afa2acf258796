#include "platform/PrintJob.h"

#include "platform/Doors.h"
#include "platform/Printer.h"

namespace {

struct Destination
{
    PageTarget target;
    int copies = 1;
};

std::optional<Destination> askPrinter(const Report &report)
{
    const auto answer = Doors::current().printDialog({report.dialogTitle, report.landscape, report.documentName});
    if (!answer)
        return {};
    return Destination{{answer->printerName, answer->pdfFileName}, answer->copies};
}

std::optional<Destination> askFile(const Report &report)
{
    const auto name = Doors::current().saveDialog({report.dialogTitle, report.documentName + u".pdf",
                                                   QStringLiteral("PDF files (*.pdf)"), QStringLiteral("pdf"), true});
    if (!name)
        return {};
    return Destination{{{}, *name}, 1};
}

PrintOutcome showOnScreen(const Report &report)
{
    if (!report.open())
        return PrintOutcome::Empty;
    Doors::current().preview({report.documentName, [&report](PageSink &pages) {
                                  Printer page(pages, report.documentName);
                                  report.print(page);
                              }});
    return PrintOutcome::Printed;
}

} // namespace

PrintOutcome RunReport(const Report &report, PrintTo target)
{
    if (target == PrintTo::Window)
        return showOnScreen(report);
    const auto destination = target == PrintTo::File ? askFile(report) : askPrinter(report);
    if (!destination)
        return PrintOutcome::Cancelled;
    for (int copy = 0; copy < destination->copies; ++copy) {
        if (!report.open())
            return PrintOutcome::Empty;
        const auto pages = Doors::current().openPages(destination->target);
        Printer page(*pages, report.documentName);
        report.print(page);
    }
    return PrintOutcome::Printed;
}
