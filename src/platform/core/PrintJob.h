// What all printouts share. A printout goes to a printer, to the preview (from which it can be printed), into a PDF or,
// if the report has one, into a spreadsheet. On a printer, each copy is a document of its own, from a new query, with
// only the pages that the keeper chose. A printout is described by a Report, which queries its rows and prints them.
#pragma once

#include <functional>

#include <QString>

class Printer;

enum class PrintTarget { Printer, Window, File };

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

/// Runs a report. Nothing is printed if the keeper cancels or if it is empty.
PrintOutcome RunReport(const Report &report, PrintTarget target);
