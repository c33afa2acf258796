// What all printouts share. A printout goes to a printer, to the preview (from which it can be printed), into a PDF or,
// if the report has one, into a spreadsheet. On a printer, each copy is a document of its own, from a new query, with
// only the pages that the keeper chose. A printout is described by a Report, which queries its rows and prints them.
// A document is sent or written when all of its pages are made; if the report fails before that, nothing is sent.
// Windows run reports through PrintReport (windows/common/PrintReport.h).
#pragma once

#include <functional>

#include <QString>

class Printer;

/// DefaultPrinter prints one copy without a dialog.
enum class PrintTarget { Printer, Window, File, DefaultPrinter };

struct Report
{
    QString dialogTitle;  ///< such as "Print Livestock Log"
    QString documentName; ///< the document's title, also offered as the name of a file
    bool landscape = false;
    std::function<bool()> open;           ///< makes a new query; returns false if there is nothing to print
    std::function<void(Printer &)> print; ///< prints the rows of the query, and ends with EndDoc
    /// Writes the same rows as CSV, if the keeper chose a file with that suffix. If it is empty, only PDFs are offered.
    std::function<void(const QString &fileName)> saveSpreadsheet = {};
};

enum class PrintOutcome { Printed, Cancelled, Empty };

/// Shows a text in a panel of the main window.
using TellPanel = std::function<void(const QString &text)>;

/// Runs a report. Nothing is printed if the keeper cancels or if it is empty. The panel tells how far the work is, and
/// at the end where the document has gone, or "Ready." if nothing was printed. Windows are repainted meanwhile; keys
/// and clicks wait. Throws RuntimeFailure.
PrintOutcome RunReport(const Report &report, PrintTarget target, const TellPanel &panel);
