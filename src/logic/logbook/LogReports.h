// The printed logs: a report of one log, for one tank or for all, each tank on a new page. Titles and columns are in
// LogKinds.h. The windows run the reports through RunReport (platform/core/PrintJob.h).
#pragma once

#include <optional>

#include "logic/logbook/LogKinds.h"
#include "platform/core/PrintJob.h"

class Database;

/// The report of a log, for the tank with that id or for all tanks. `datePicture` is the format of the dates. The
/// database must outlive the report.
Report MakeLogReport(LogTab log, Database &database, const QString &datePicture, const std::optional<QString> &tankId);

/// The message if there are no rows.
QString EmptyLogText(LogTab log);

/// Prints the top and the bottom of a page: the title, the tank, and the lines at the foot, all before the rows.
void PrintPageHeadings(Printer &page, const QString &title, const QString &tankName, const QString &tankSize,
                       const QString &tankDescription, int pageNumber, const QString &datePicture);
