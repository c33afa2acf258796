// The printed logs: one report a log, for one tank or for all, each tank on a page of its own. Their
// columns and titles are in LogKinds.h. The windows run them through RunReport (platform/core/PrintJob.h).
#pragma once

#include <optional>

#include "logic/logbook/LogKinds.h"
#include "platform/core/PrintJob.h"

class Database;

/// A log of the tank of that tankid, or of all tanks. `datePicture` shows the dates. The database must outlive the
/// report.
Report MakeLogReport(LogTab log, Database &database, const QString &datePicture, const std::optional<QString> &tankId);

/// What is said where there are no rows.
QString EmptyLogText(LogTab log);

/// Top and bottom of a page: title, tank, and the foot lines, which are printed before the page's rows.
void PrintPageHeadings(Printer &page, const QString &title, const QString &tankName, const QString &tankSize,
                       const QString &tankDescription, int pageNumber, const QString &datePicture);
