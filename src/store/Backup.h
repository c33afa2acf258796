// Copies the database file byte for byte: for the keeper's backup, before an upgrade, and to go back to a copy. Either
// the copy is complete and on the disk, or nothing has changed, and a file that was to be replaced is still there.
// Other programs cannot write to the database while it is being copied. Failures are RuntimeFailure: for the database
// the same as in OpenDatabase, for the target PermissionDenied, PathNotFound, DiskFull or DeviceError.
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

/// Puts a copy in the place of the database, which may be damaged or missing. The copy must be an undamaged database of
/// a known version. The present file is kept beside it as "OM-before-restore.MDB" (or -2 and so on), and the path of
/// that file is returned; empty if there was no present file. `beforeChange` is called after the copy has been checked
/// and before anything changes. Throws UnrecognizedFormat for a bad copy, and PermissionDenied if the journal of an
/// interrupted change is beside either file.
QString RestoreDatabase(const QString &database, const QString &copy, const std::function<void()> &beforeChange);

/// Keeps a copy of a file that is not a database of ours: OM.MDB with the ending "-old-engine" becomes
/// "OM-old-engine.MDB". Otherwise like KeepOldDatabase.
QString KeepOldFile(const QString &path, const QString &ending);
