// Printers: the system's dialog, pages on one, and the preview.
#pragma once

#include <memory>
#include <optional>

#include "platform/Doors.h"

class QPrinter;
class QWidget;

bool HasPrinters();
std::optional<PrintDialogAnswer> AskPrinter(QWidget *parent, const PrintDialogRequest &request);
/// Pages on the printer of that name, which they own.
std::unique_ptr<PageSink> PagesOnPrinter(const QString &printerName);
/// Pages on a printer that the caller keeps; its document ends with the pages.
std::unique_ptr<PageSink> PagesOnPrinter(QPrinter &printer);
void ShowPreview(QWidget *parent, const PreviewRequest &request);
