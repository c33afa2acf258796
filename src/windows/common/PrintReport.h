// Runs a report with the hourglass, and with its progress and result in panel 1 of the main window.
#pragma once

#include "platform/controls/HourGlass.h"
#include "platform/core/PrintJob.h"
#include "windows/shell/MainWindow.h"

inline PrintOutcome PrintReport(MainWindow &main, const Report &report, PrintTarget target)
{
    const HourGlass waiting; // dialogs and boxes have the arrow meanwhile
    return RunReport(report, target, [&main](const QString &text) { main.setPanel(text); });
}
