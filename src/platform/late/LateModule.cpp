// The module's only name that is seen from outside.
#include "platform/chart/ChartPlot.h"
#include "platform/late/LateParts.h"
#include "platform/late/Paper.h"

extern "C" const LateParts ostrelmarkLateParts = {
    [](QWidget *parent) -> ChartCanvas * { return new ChartPlot(parent); },
    HasPrinters,
    AskPrinter,
    PagesOnPrinter,
    ShowPreview,
};
