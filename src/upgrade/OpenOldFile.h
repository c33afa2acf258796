// What the start does with a file of the old engine: a separate program reads it into a draft, the old file is kept as
// OM-old-engine.MDB, and the draft takes its place. Whatever fails, and whenever the program is killed, the old file is
// intact under one of the two names, and the next start either begins again or finds everything done. main() calls this
// after it has entered the keeper's folder and before it opens the database.
#pragma once

#include <QString>

/// Does nothing if there is no such file or if it is not of the old engine. Returns false if parts of it could not be
/// read and the keeper does not want the rest. After that, and after a RuntimeFailure, the folder is unchanged.
bool OpenOldFile(const QString &databaseName);
