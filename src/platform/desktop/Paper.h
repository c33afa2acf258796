// Printing on paper, for DesktopDoors: the system's print dialog, the pages of a printer, and the preview.
#pragma once

#include <functional>
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

using AskWhere = std::function<std::optional<PrintDialogAnswer>(const std::shared_ptr<QPrinter> &)>;
/// Shows the preview and returns when it is closed. Its "Print" button calls `where`, which asks the keeper where to
/// print; an answer closes the preview and is returned. `request.print` must not throw.
std::optional<PrintDialogAnswer> ShowPreview(QWidget *parent, const PreviewRequest &request, const AskWhere &where);
