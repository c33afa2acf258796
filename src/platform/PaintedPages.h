// Pages that are painted: on a printer (also the one that a preview hands out), or into a PDF. The one place where a
// report meets QPainter.
#pragma once

#include <memory>

#include "platform/Pages.h"

class QPrinter;

/// Pages on a printer that the caller keeps; its document ends with the pages.
std::unique_ptr<PageSink> PagesOnPrinter(QPrinter &printer);
/// Pages on the printer of that name, which they own.
std::unique_ptr<PageSink> PagesOnPrinter(const QString &printerName);
/// Pages in a PDF file, there when its document has ended.
std::unique_ptr<PageSink> PagesInPdf(const QString &fileName);
