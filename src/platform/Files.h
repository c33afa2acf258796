// Where files are. Those of the keeper's folder are found whatever the case of their names: they may come from a system
// that keeps none.
#pragma once

#include <QString>

/// Absolute path of a file, found by its exact name or else by its name in any case of letters; empty if there is none.
QString FindFile(const QString &fileName);

/// The folder of the data files that came with the program: name files and help. Read only.
QString DataFolder();
