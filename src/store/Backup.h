// Copies of the database file, byte for byte: the keeper's backup, and what an upgrade keeps of the old file. A copy is
// complete and on the disk, or not there at all, and a file in whose place it was to come stays as it was. While it is
// read other programs cannot write. The database itself is never changed. Failures are RuntimeFailure: those of the
// database as OpenDatabase has them, those of the target PermissionDenied, PathNotFound, DiskFull, DeviceError.
#pragma once

#include <QString>

/// Throws PermissionDenied where the target can hold no backup: it is a folder, a device, read-only, or a file of the
/// database itself, by whatever path or link. To be asked before the keeper is asked about overwriting it.
void RequireBackupTarget(const QString &database, const QString &target);

/// Copies to the target, in the place of a file that is there; a link is followed. Calls RequireBackupTarget.
void BackUpDatabase(const QString &database, const QString &target);

/// Keeps a copy beside the database before an upgrade, and returns its path: OM.MDB of version "1.0" becomes
/// "OM-version-1.0.MDB", or "OM-version-1.0-2.MDB" and so on where such a file is there. An older copy is never
/// overwritten; one that is the same to the last byte, from an upgrade that was cut off, serves again.
QString KeepOldDatabase(const QString &database, const QString &version);
