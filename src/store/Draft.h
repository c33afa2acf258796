// A file that grows under a name of its own beside the one that it is to be, and gets that name once it is complete:
// whoever looks finds the old file or the whole new one, never a part. Gone with this object unless it got its name;
// what a kill or a power cut leaves behind is called NAME.new-NUMBER, is read by nobody, and goes with the next draft
// of that file. Used by CreateDatabase and by the copies of Backup.h.
#pragma once

#include <QString>

class Draft
{
public:
    /// Makes the empty draft of that file. `doing` is what a failure says was being done. Throws RuntimeFailure, as the
    /// others: PermissionDenied, PathNotFound, DiskFull, DeviceError.
    Draft(const QString &fileName, const QString &doing);
    ~Draft();
    Draft(const Draft &) = delete;
    Draft &operator=(const Draft &) = delete;

    QString path() const { return m_path; }
    /// Never takes the place of a file that has come meanwhile.
    void giveName();
    /// Takes the place of a file of that name, if there is one. What was written must be on the disk by then.
    void replace();

private:
    QString m_path, m_name, m_doing;
};

/// Throws the RuntimeFailure that stands for an error of the system, with its words and what was being done.
[[noreturn]] void throwErrno(int error, const QString &doing);

/// Throws PermissionDenied.
[[noreturn]] void throwExists(const QString &path);
