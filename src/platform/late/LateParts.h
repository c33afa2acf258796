// What is loaded when it is first wanted: the picture of a chart, and all that meets a printer. The two libraries
// behind them would be a tenth of every start. They and what uses them are a module of their own; the rest of the house
// has them by this table.
#pragma once

#include <memory>
#include <optional>

#include "platform/Doors.h"

class ChartCanvas;
class QWidget;

struct LateParts
{
    /// Belongs to the parent; to the caller where that is null.
    ChartCanvas *(*makeChartCanvas)(QWidget *parent);
    bool (*hasPrinters)();
    /// The system's dialog; nothing where it was cancelled.
    std::optional<PrintDialogAnswer> (*askPrinter)(QWidget *parent, const PrintDialogRequest &request);
    std::unique_ptr<PageSink> (*pagesOnPrinter)(const QString &printerName);
    /// Until its window is closed. What `print` throws must not come out of it.
    void (*preview)(QWidget *parent, const PreviewRequest &request);
};

/// Loads them at the first call. Throws CouldNotFindFile where the module is not there, and looks again at the next.
const LateParts &Late();
