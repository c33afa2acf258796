// The module's only name that is seen from outside, and the one function that it has not of its own.
#include "platform/chart/ChartPlot.h"
#include "platform/Guarded.h"
#include "platform/HelpViewer.h"
#include "platform/late/LateParts.h"
#include "platform/late/Paper.h"

namespace {

void (*showInProgram)(const RuntimeFailure &failure) = nullptr;

} // namespace

/// In place of the one in Guarded.cpp, which would show nothing here: the doors are the program's.
void showFailure(const RuntimeFailure &failure) { showInProgram(failure); }

extern "C" const LateParts ostrelmarkLateParts = {
    [](void (*show)(const RuntimeFailure &)) { showInProgram = show; },
    [](QWidget *parent) -> ChartCanvas * { return new ChartPlot(parent); },
    HasPrinters,
    AskPrinter,
    PagesOnPrinter,
    ShowPreview,
    [](const QString &helpFile) -> std::function<void(const HelpRequest &)> {
        return [viewer = std::make_shared<HelpViewer>(helpFile)](const HelpRequest &request) { viewer->open(request); };
    },
};
