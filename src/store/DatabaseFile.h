// Internal to the store: checks that a file is a database of ours and can be written. Each check throws the
// RuntimeFailure that OpenDatabase documents; none changes or creates a file. The header is read through the engine's
// own file handle, because opening and closing the file a second time would drop the locks that this process holds on
// it.
#pragma once

#include <memory>

#include <QString>

class Connection;

/// Throws PermissionDenied if the file cannot be written, or its folder, where the journal is created.
void requireWritable(const QString &path);

/// Throws UnrecognizedFormat if the file does not begin like one of ours.
void requireOurHeader(Connection &connection, const QString &path);

/// Throws UnrecognizedFormat if the file is shorter than its header says, or if a table or the row of CONFIG is
/// missing. This is the first check that takes a lock: it throws PermissionDenied if another program holds the file.
void requireWholeContent(const std::shared_ptr<Connection> &connection, const QString &path);

/// Whether the file may be written. `access` is passed to access(); the permission bits must allow it as well: they do
/// not bind every user, but they say what the keeper wants.
bool isWritable(const QString &path, int access);

/// Length of the open file in bytes.
qint64 fileSize(Connection &connection);
/// Reads exactly that many bytes of the open file. Throws the RuntimeFailure for the engine's code; `doing` describes
/// the operation in its text.
void readFile(Connection &connection, char *to, int size, qint64 at, const QString &doing);
