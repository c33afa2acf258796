// Opens a file of the old engine at the start: another program reads it into a draft, the old file is kept beside it as
// OM-old-engine.MDB, and the draft takes its place. Whatever fails, and whenever the program is killed, the old file is
// complete under one of the two names, and the next start either begins again or finds everything done. main() calls it
// after the keeper's folder is opened and before the database is.
#pragma once

#include <QString>

/// Does nothing if the file does not exist or is not of the old engine. Returns false if not all of it could be read
/// and the keeper does not want the rest; the folder is then unchanged, as it is after a RuntimeFailure.
bool OpenOldFile(const QString &databaseName);
