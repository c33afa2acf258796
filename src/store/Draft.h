// A file that is written under a temporary name beside its target and renamed once it is complete, so that the target
// is always either the old file or the whole new one. The destructor removes a draft that was not renamed. A kill or a
// power cut leaves a file NAME.new-NUMBER behind, which nobody reads and which the next draft of the same target
// removes. Used by CreateDatabase and by the copies of Backup.h and Copies.h.
#pragma once

#include <QString>

class QDir;

class Draft
{
public:
    /// Creates the empty draft. `doing` describes the operation in the text of a failure. Throws RuntimeFailure, as the
    /// other functions do: PermissionDenied, PathNotFound, DiskFull or DeviceError.
    Draft(const QString &fileName, const QString &doing);
    ~Draft();
    Draft(const Draft &) = delete;
    Draft &operator=(const Draft &) = delete;

    QString path() const { return m_path; }
    /// Gives the draft the permissions of that file, if there is one, and puts all that was written on the disk.
    void complete(const QString &like);
    /// Renames the draft, but never replaces a file that has appeared meanwhile.
    void giveName();
    /// Renames the draft and replaces an existing file. What was written must be on the disk by then.
    void replace();

private:
    QString m_path, m_name, m_doing;
};

/// Removes what a kill or a power cut left of the drafts of all files in a folder.
void RemoveStrayDrafts(const QDir &folder);

/// Throws the RuntimeFailure for an error of the system, with the system's text and `doing`.
[[noreturn]] void throwErrno(int error, const QString &doing);

/// Throws PermissionDenied.
[[noreturn]] void throwExists(const QString &path);
