// What is loaded when it is first wanted: the picture of a chart, all that meets a printer, and the help. The libraries
// behind them would be a seventh of every start. They and what uses them are a module of their own; the rest of the
// house has them by this table.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/Doors.h"

class ChartCanvas;
class QWidget;
class RuntimeFailure;

struct LateParts
{
    /// Called once, before all others: where failures of the module's handlers are shown.
    void (*begin)(void (*showFailure)(const RuntimeFailure &failure));
    /// Belongs to the parent; to the caller where that is null.
    ChartCanvas *(*makeChartCanvas)(QWidget *parent);
    bool (*hasPrinters)();
    /// The system's dialog; nothing where it was cancelled.
    std::optional<PrintDialogAnswer> (*askPrinter)(QWidget *parent, const PrintDialogRequest &request);
    std::unique_ptr<PageSink> (*pagesOnPrinter)(const QString &printerName);
    /// Until its window is closed. What `print` throws must not come out of it.
    void (*preview)(QWidget *parent, const PreviewRequest &request);
    /// A viewer of that help file, which opens what it is called with. Throws RuntimeFailure where it is no help file.
    std::function<void(const HelpRequest &)> (*makeHelp)(const QString &helpFile);
};

/// Loads them at the first call. Throws CouldNotFindFile where the module is not there, and looks again at the next.
const LateParts &Late();
