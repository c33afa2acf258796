// The verbs export and import: they tell on the terminal what data/Export.h and data/Import.h do. Each returns a
// DataStatus.
#pragma once

#include "data/Export.h"
#include "data/Import.h"

class KeepersData;

/// Prints each file with the number of its rows.
int ExportData(KeepersData &data, const ExportOptions &options);

/// Prints how many rows were added, replaced and passed over, or each fault on stderr. Takes the lock of the folder
/// unless nothing is to be stored.
int ImportData(KeepersData &data, const QString &fileName, const ImportOptions &options);
