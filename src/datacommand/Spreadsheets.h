// The verbs export and import. They call Export and Import and print what these did. Each returns a DataStatus.
#pragma once

#include "data/Export.h"
#include "data/Import.h"

class KeepersData;

/// Prints each file with the number of its rows.
int ExportData(KeepersData &data, const ExportOptions &options);

/// Prints how many rows were added, replaced and passed over, or each fault on stderr. Locks the folder, except in a
/// dry run.
int ImportData(KeepersData &data, const QString &fileName, const ImportOptions &options);
