// What all printouts share: the print dialog under its title, copies as documents of their own, each from a fresh
// query and of the pages that were chosen; or the preview, which can print as well; or a PDF. A printout is a Report:
// it opens its rows, tells whether there are any, and prints them.
#pragma once

#include <functional>

#include <QString>

class Printer;

enum class PrintTarget { Printer, Window, File };

struct Report
{
    QString dialogTitle;  ///< of the print dialog, as "Print Livestock Log"
    QString documentName; ///< title of the document, and offered as a file's name
    bool landscape = false;
    std::function<bool()> open;           ///< queries afresh; false where there is nothing to print
    std::function<void(Printer &)> print; ///< prints what was opened, to its EndDoc
};

enum class PrintOutcome { Printed, Cancelled, Empty };

/// Runs a report. Nothing is printed where it is cancelled or empty.
PrintOutcome RunReport(const Report &report, PrintTarget target);
