// Writes an empty database file of the present version: the tables, the one row of CONFIG and the word list. Called at
// the first start in a folder, by omk_newdb, and by tests.
#pragma once

#include <QString>

/// Throws RuntimeFailure: PermissionDenied where a file of that name is there, in any case of letters, or the folder
/// cannot be written, PathNotFound where there is no such folder, DiskFull. The file comes to be complete or not at
/// all.
void CreateDatabase(const QString &fileName);
