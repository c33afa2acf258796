// The start on a file of the old engine: it is read into a draft by a program of its own, the old file is kept beside
// as OM-old-engine.MDB, and the draft takes its place. Whatever fails, and whenever the program is killed, the old file
// is whole under one of the two names, and the next start begins anew or finds all done. main() calls it once the
// keeper's folder is entered, before the database is opened.
#pragma once

#include <QString>

/// Does nothing where the file is not there or not of the old engine. False where not all of it could be read and the
/// keeper does not want the rest: the folder is then as it was, as after a RuntimeFailure.
bool OpenOldFile(const QString &databaseName);
