// Printers: the system's dialog, pages on one, and the preview.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/Doors.h"

class QPrinter;
class QWidget;

bool HasPrinters();
/// A printer that is set up as a document asks for: its name and how its pages lie.
std::shared_ptr<QPrinter> PrinterFor(const PrintDialogRequest &request);
/// The system's dialog. The printer keeps what is chosen there, but for the number of copies, each of which is a
/// document of its own.
std::optional<PrintDialogAnswer> AskPrinter(QWidget *parent, const PrintDialogRequest &request,
                                            std::shared_ptr<QPrinter> printer);
/// Pages on a printer as it is set up; on the one that is the default where none is given.
std::unique_ptr<PageSink> PagesOnPrinter(std::shared_ptr<QPrinter> printer);

using AskWhere = std::function<std::optional<PrintDialogAnswer>(const std::shared_ptr<QPrinter> &)>;
/// Until its window is closed; its "Print" button asks `where`, and closes it with that answer. What `print` of the
/// request throws must not come out of it.
std::optional<PrintDialogAnswer> ShowPreview(QWidget *parent, const PreviewRequest &request, const AskWhere &where);
