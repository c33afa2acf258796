// Writes the keeper's data as CSV files that any spreadsheet and the import can read: one file for the tanks, one for
// each log and one for the reminders. A row names its tank; dates are ISO, and numbers have a decimal point.
#pragma once

#include <optional>
#include <vector>

#include <QDate>
#include <QString>

#include "logic/logbook/LogKinds.h"

struct Globals;

struct ExportOptions
{
    QString folder = {};   ///< created if it does not exist
    QString tank = {};     ///< exports only the tank of this name, without reminders; empty for everything
    bool replaces = false; ///< whether existing files are replaced
};

struct ExportedFile
{
    QString path;
    qint64 rows = 0;
};

struct ExportResult
{
    QString refusal; ///< a sentence that says why nothing was written; empty if all files were written
    std::vector<ExportedFile> files;
    qint64 lost = 0; ///< how many entries are in no file, because their tanks no longer exist
};

/// Exports g.gDatabase; ReadOptions must have been called. All files show the same state of the database, and none gets
/// its name before all are complete. Throws RuntimeFailure if the database cannot be read or a file cannot be written.
ExportResult Export(const Globals &g, const ExportOptions &options);

struct ScheduledTask
{
    QDate date;
    QString task;
};

/// Writes one log, for the tank with that tankid or for all tanks, and returns the number of its rows. Replaces an
/// existing file. Throws RuntimeFailure.
qint64 ExportLog(const Globals &g, LogTab log, const std::optional<QString> &tankId, const QString &fileName);

/// Writes a generated schedule with the columns "date" and "reminder". Replaces an existing file. Throws
/// RuntimeFailure.
void ExportSchedule(const std::vector<ScheduledTask> &tasks, const QString &fileName);
