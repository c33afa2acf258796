// Printing on paper, for DesktopDoors: the system's print dialog, and the pages of a printer.
#pragma once

#include <memory>
#include <optional>

#include "platform/core/Doors.h"

class QPrinter;
class QWidget;

bool HasPrinters();
/// The default printer, set up with the name and the orientation of the document.
std::shared_ptr<QPrinter> PrinterFor(const PrintDialogRequest &request);
/// Shows the system's dialog. The printer keeps all that is chosen there except the number of copies, because each copy
/// is a document of its own.
std::optional<PrintDialogAnswer> AskPrinter(QWidget *parent, const PrintDialogRequest &request,
                                            std::shared_ptr<QPrinter> printer);
/// Pages on a printer as it is set up; null means the default printer.
std::unique_ptr<PageSink> PagesOnPrinter(std::shared_ptr<QPrinter> printer);
