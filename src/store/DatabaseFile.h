// Inside of the store: is this file a database of ours, and can it be written? Each check throws the RuntimeFailure
// that OpenDatabase promises, and none changes or creates a file. The header is read through the engine's own file
// handle: to open and close the file a second time would drop the locks that this process holds on it.
#pragma once

#include <memory>

#include <QString>

class Connection;

/// Throws PermissionDenied where the file or its folder, which needs room for the journal, cannot be written.
void requireWritable(const QString &path);

/// Throws UnrecognizedFormat where the first bytes are not those of one of our files.
void requireOurHeader(Connection &connection, const QString &path);

/// Throws UnrecognizedFormat where the file is shorter than it says, or a table or the row of CONFIG is missing. The
/// first to take a lock: throws PermissionDenied where another program holds the file.
void requireWholeContent(const std::shared_ptr<Connection> &connection, const QString &path);

/// May it be written? `access` is what access() is asked for; the bits must allow it as well, which do not bind every
/// user but say what the keeper wants.
bool isWritable(const QString &path, int access);

/// Length of the open file in bytes.
qint64 fileSize(Connection &connection);
/// Reads exactly so many bytes of the open file. Throws what stands for the engine's code; `doing` as elsewhere.
void readFile(Connection &connection, char *to, int size, qint64 at, const QString &doing);
