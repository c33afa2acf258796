// Copies of the database file, byte for byte: the keeper's backup, what an upgrade keeps of the old file, and the way
// back to a copy. Either
// the copy is complete and on the disk, or nothing has changed: a file that was to be replaced is still there. Other
// programs cannot write to the database while it is being copied. The database itself is never changed. Failures are
// RuntimeFailure: for the database the same as in OpenDatabase, for the target PermissionDenied, PathNotFound, DiskFull
// or DeviceError.
#pragma once

#include <functional>

#include <QString>

/// Throws PermissionDenied if the target cannot hold a backup: it is a folder, a device, read-only, or one of the
/// database's own files, through any path or link. Call it before asking the keeper whether to overwrite the target.
void RequireBackupTarget(const QString &database, const QString &target);

/// Copies to the target, replacing an existing file. Links are followed. Calls RequireBackupTarget.
void BackUpDatabase(const QString &database, const QString &target);

/// Keeps a copy beside the database before an upgrade, and returns its path: OM.MDB of version "1.0" becomes
/// "OM-version-1.0.MDB", or "OM-version-1.0-2.MDB" and so on if that name is taken. An older copy is never overwritten.
/// An identical copy, left by an interrupted upgrade, is used again.
QString KeepOldDatabase(const QString &database, const QString &version);

/// Puts a copy in the place of the database, which may be damaged or missing. The copy must be a whole database of a
/// known version. The present file is kept beside it as "OM-before-restore.MDB" (or -2 and so on), and its path is
/// returned; empty if there was none. `beforeChange` is called when the copy has been checked and nothing has changed
/// yet. Throws UnrecognizedFormat for a bad copy, and PermissionDenied where a change that was cut off is left beside
/// either file.
QString RestoreDatabase(const QString &database, const QString &copy, const std::function<void()> &beforeChange);

/// The same of a file that is no database of ours: OM.MDB with the ending "-old-engine" becomes "OM-old-engine.MDB".
QString KeepOldFile(const QString &path, const QString &ending);
