// Writes an empty database file of the present version: the tables, the one row of CONFIG and the word list. Called at
// the first start in a folder, by omk_newdb, and by tests.
#pragma once

#include <QString>

class Connection;

/// Throws RuntimeFailure: PermissionDenied if a file of that name exists (in any case of letters) or the folder cannot
/// be written, PathNotFound if there is no such folder, DiskFull. Either the complete file is created or none.
void CreateDatabase(const QString &fileName);

/// Creates only the tables, in an empty file, and writes the numbers that mark it as one of ours. `doing` describes the
/// operation in the text of a failure.
void WriteEmptyTables(Connection &connection, const QString &doing);
