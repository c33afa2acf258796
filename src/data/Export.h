// Writes the keeper's data as CSV files that any spreadsheet reads and the import takes back: one file for the tanks,
// one for each log and one for the reminders. A row names its tank; dates are ISO, numbers have a decimal point.
#pragma once

#include <optional>
#include <vector>

#include <QString>

#include "logic/logbook/LogKinds.h"

struct Globals;

struct ExportOptions
{
    QString folder = {};   ///< is made if it does not exist
    QString tank = {};     ///< the name of the only tank to be exported, without reminders; empty for all
    bool replaces = false; ///< files of these names
};

struct ExportedFile
{
    QString path;
    qint64 rows = 0;
};

struct ExportResult
{
    QString refusal; ///< why nothing was written: a sentence; empty if all files were written
    std::vector<ExportedFile> files;
    qint64 lost = 0; ///< entries of tanks that are gone, which no file has
};

/// Exports g.gDatabase; ReadOptions must have been called. All files are of one state of the database; each is whole or
/// not there, and none gets its name before all are written. Throws RuntimeFailure if the database cannot be read or a
/// file cannot be written.
ExportResult Export(const Globals &g, const ExportOptions &options);

/// Writes one log, of the tank of that tankid or of all tanks, and returns the number of its rows. Replaces an existing
/// file. Throws RuntimeFailure.
qint64 ExportLog(const Globals &g, LogTab log, const std::optional<QString> &tankId, const QString &fileName);
