#include "store/Draft.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/core/RuntimeFailure.h"

namespace {

QByteArray encoded(const QString &path) { return QFile::encodeName(path); }

/// A file's name is on the disk only once its folder has been synced. Some file systems do not support syncing a folder
/// and do it themselves.
void syncFolderOf(const QString &path)
{
    const int folder = ::open(encoded(QFileInfo(path).absolutePath()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    ::fsync(folder);
    ::close(folder);
}

const QString mark = QStringLiteral(".new-"); // followed by the number of the process

void removeWithJournal(const QString &path)
{
    ::unlink(encoded(path).constData());
    ::unlink(encoded(path + QStringLiteral("-journal")).constData());
}

/// Drafts whose process no longer runs, of that file or, if it is empty, of all files; a kill or a power cut left them.
void removeStrayDrafts(const QDir &folder, const QString &fileName)
{
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden)) {
        const qsizetype end = name.lastIndexOf(mark);
        if (end <= 0 || (!fileName.isEmpty() && name.first(end) != fileName))
            continue;
        bool isNumber = false;
        const int process = name.mid(end + mark.size()).toInt(&isNumber);
        if (isNumber && process > 0 && ::kill(process, 0) != 0 && errno == ESRCH)
            removeWithJournal(folder.filePath(name));
    }
}

} // namespace

void RemoveStrayDrafts(const QDir &folder) { removeStrayDrafts(folder, {}); }

void throwErrno(int error, const QString &doing)
{
    const Failure failure = error == ENOENT || error == ENOTDIR                    ? Failure::PathNotFound
                            : error == ENOSPC || error == EDQUOT || error == EFBIG ? Failure::DiskFull
                            : error == EIO                                         ? Failure::DeviceError
                                                                                   : Failure::PermissionDenied;
    throw RuntimeFailure(failure, QStringLiteral("%1\n(%2)").arg(doing, qt_error_string(error)));
}

void throwExists(const QString &path)
{
    throw RuntimeFailure(Failure::PermissionDenied,
                         QStringLiteral("The file %1 already exists and was not changed.").arg(path));
}

Draft::Draft(const QString &fileName, const QString &doing) :
    m_path(fileName + mark + QString::number(::getpid())), m_name(fileName), m_doing(doing)
{
    removeStrayDrafts(QFileInfo(fileName).absoluteDir(), QFileInfo(fileName).fileName());
    const int file = ::open(encoded(m_path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0)
        throwErrno(errno, m_doing);
    ::close(file);
}

Draft::~Draft() { removeWithJournal(m_path); }

void Draft::complete(const QString &like)
{
    const int file = ::open(encoded(m_path).constData(), O_WRONLY | O_CLOEXEC);
    if (file < 0)
        throwErrno(errno, m_doing);
    struct stat status = {};
    if (::stat(encoded(like).constData(), &status) == 0)
        ::fchmod(file, status.st_mode & 0777); // not every file system supports it
    const int error = ::fsync(file) == 0 ? 0 : errno;
    ::close(file);
    if (error != 0)
        throwErrno(error, m_doing);
}

void Draft::giveName()
{
    const QByteArray from = encoded(m_path), to = encoded(m_name);
    // Not every file system supports the first call; older ones support the second.
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) != 0 &&
        (errno == EEXIST || ::link(from.constData(), to.constData()) != 0)) {
        if (errno == EEXIST)
            throwExists(m_name);
        throwErrno(errno, m_doing);
    }
    syncFolderOf(m_name);
}

void Draft::replace()
{
    if (::rename(encoded(m_path).constData(), encoded(m_name).constData()) != 0)
        throwErrno(errno, m_doing);
    syncFolderOf(m_name);
}
