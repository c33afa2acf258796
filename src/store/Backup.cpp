#include "store/Backup.h"

#include <algorithm>
#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "platform/core/Files.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Connection.h"
#include "store/Database.h"
#include "store/DatabaseFile.h"
#include "store/Draft.h"
#include "store/Inspection.h"
#include "store/Version.h"

namespace {

/// The database while it is being copied. Other programs may read it meanwhile, but not write to it. Changes that a
/// crashed program left unfinished have been rolled back.
class Source
{
public:
    Source(const QString &fileName, const QString &doing) : m_connection(foundFile(fileName)), m_doing(doing)
    {
        requireOurHeader(m_connection, fileName);
        m_connection.run("BEGIN; SELECT count(*) FROM sqlite_master", doing);
        m_size = fileSize(m_connection);
    }

    /// Calls `take(bytes, count)` with one piece after the other until it returns false. Returns whether all pieces
    /// were taken.
    template <class Take> bool read(Take take)
    {
        for (qint64 at = 0; at < m_size;) {
            const int count = int(std::min<qint64>(qint64(m_piece.size()), m_size - at));
            readFile(m_connection, m_piece.data(), count, at, m_doing);
            if (!take(m_piece.data(), std::size_t(count)))
                return false;
            at += count;
        }
        return true;
    }
    qint64 size() const { return m_size; }

private:
    static QString foundFile(const QString &fileName)
    {
        const QString path = FindFile(fileName);
        if (path.isEmpty())
            throw RuntimeFailure(Failure::CouldNotFindFile,
                                 QStringLiteral("The database %1 is no longer there.").arg(fileName));
        return path;
    }

    Connection m_connection;
    QString m_doing;
    qint64 m_size = 0;
    std::vector<char> m_piece = std::vector<char>(1 << 20);
};

/// A file that is not a database of ours, while it is being copied.
class PlainSource
{
public:
    PlainSource(const QString &path, const QString &doing) : m_file(path), m_doing(doing)
    {
        check(m_file.open(QIODevice::ReadOnly));
    }
    template <class Take> bool read(Take take)
    {
        check(m_file.seek(0));
        for (QByteArray piece; !m_file.atEnd();) {
            piece = m_file.read(1 << 20);
            check(!piece.isEmpty());
            if (!take(piece.constData(), std::size_t(piece.size())))
                return false;
        }
        return true;
    }
    qint64 size() const { return m_file.size(); }

private:
    void check(bool good) const
    {
        if (!good)
            throw RuntimeFailure(Failure::DeviceError, QStringLiteral("%1\n(%2)").arg(m_doing, m_file.errorString()));
    }
    QFile m_file;
    QString m_doing;
};

/// A file that is being written. It has no buffer, so a full or broken disk makes the call that writes fail at once.
class Output
{
public:
    Output(const QString &path, const QString &doing) :
        m_file(::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC)), m_doing(doing)
    {
        check(m_file >= 0);
    }
    ~Output() { ::close(m_file); }
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    void write(const char *from, std::size_t count)
    {
        while (count > 0) {
            const ssize_t written = ::write(m_file, from, count);
            if (written < 0 && errno == EINTR)
                continue;
            check(written > 0);
            from += written;
            count -= std::size_t(written);
        }
    }

private:
    void check(bool good) const
    {
        if (!good)
            throwErrno(errno, m_doing);
    }
    int m_file;
    QString m_doing;
};

template <class From> void copyInto(Draft &draft, From &source, const QString &database, const QString &doing)
{
    Output output(draft.path(), doing);
    source.read([&output](const char *bytes, std::size_t count) {
        output.write(bytes, count);
        return true;
    });
    draft.complete(database);
}

template <class From> bool isSame(From &source, const QString &path)
{
    QFile copy(path);
    if (!copy.open(QIODevice::ReadOnly) || copy.size() != source.size())
        return false;
    return source.read([&copy](const char *bytes, std::size_t count) {
        return copy.read(qint64(count)) == QByteArrayView(bytes, qsizetype(count));
    });
}

/// Copies to a new file beside `path`: its name gets `ending` and, if such a file exists already, a number.
template <class From> QString keepBeside(From &source, const QString &path, const QString &ending, const QString &doing)
{
    const QFileInfo file(path);
    for (int number = 1;; ++number) {
        const QString last = (number > 1 ? u'-' + QString::number(number) : QString()) + u'.' + file.suffix();
        const QString copy = file.absoluteDir().filePath(file.completeBaseName() + ending + last);
        if (isSame(source, copy))
            return copy;
        if (QFileInfo::exists(copy) || QFileInfo(copy).isSymLink())
            continue;
        Draft draft(copy, doing);
        copyInto(draft, source, path, doing);
        draft.giveName();
        return copy;
    }
}

/// The target itself if the path is a link to it.
QString realPath(const QString &target)
{
    const QFileInfo file(target);
    const QString real = file.canonicalFilePath(); // empty if there is no such file
    return real.isEmpty() ? file.absoluteFilePath() : real;
}

/// Whether the target is the database through another path or link, or one of the files that the engine keeps beside
/// it.
bool belongsTo(const QString &database, const QString &target)
{
    struct stat one = {}, other = {};
    if (::stat(QFile::encodeName(database).constData(), &one) == 0 &&
        ::stat(QFile::encodeName(target).constData(), &other) == 0 && one.st_dev == other.st_dev &&
        one.st_ino == other.st_ino)
        return true;
    const QFileInfo copy(realPath(target));
    const QString folder = QFileInfo(copy.absolutePath()).canonicalFilePath();
    const QString path = QDir(folder.isEmpty() ? copy.absolutePath() : folder).filePath(copy.fileName());
    for (const char *ending : {"-journal", "-wal", "-shm"})
        if (path == realPath(database) + QLatin1String(ending))
            return true;
    return false;
}

/// A journal belongs to one state of its file: the engine would apply it to any other file under that name.
void requireNoJournal(const QString &path)
{
    for (const char *ending : {"-journal", "-wal"})
        if (QFileInfo::exists(path + QLatin1String(ending)))
            throw RuntimeFailure(
                Failure::PermissionDenied,
                QStringLiteral("A change of %1 was interrupted and left the file %2. Move both files into another "
                               "folder, or only the second if the first does not exist, and try again.")
                    .arg(path, QFileInfo(path).fileName() + QLatin1String(ending)));
}

/// Finishes or undoes a change of the present file that a crash interrupted, as opening the file always does.
void settle(const QString &path)
{
    try {
        if (QFileInfo::exists(path))
            Source(path, QStringLiteral("Reading the present database \"%1\".").arg(path));
    } catch (const RuntimeFailure &failure) {
        if (failure.number() != Failure::UnrecognizedFormat) // a damaged file is kept as it is
            throw;
    }
    requireNoJournal(path);
}

/// Checks the file at `path`; a failure names `copy` instead.
void requireWholeCopy(const QString &path, const QString &copy)
{
    const auto refuse = [](const QString &why) { throw RuntimeFailure(Failure::UnrecognizedFormat, why); };
    try {
        const auto database = Database::OpenDatabase(path);
        if (const QStringList damage = FindDamage(*database); !damage.isEmpty())
            refuse(QStringLiteral("%1 is damaged: %2").arg(path, damage.front()));
        if (const QString version = ReadDatabaseVersion(*database); NumberOfVersion(version) == 0)
            refuse(
                QStringLiteral("%1 is of version %2, which this program does not know.").arg(path, version.trimmed()));
    } catch (const RuntimeFailure &failure) {
        throw RuntimeFailure(failure.number(), failure.description().section(u'\n', 1).replace(path, copy));
    }
}

QString doingKeep(const QString &path)
{
    return QStringLiteral("Keeping a copy of the old database \"%1\" beside it.").arg(path);
}

} // namespace

void RequireBackupTarget(const QString &database, const QString &target)
{
    const auto refuse = [](const QString &why) { throw RuntimeFailure(Failure::PermissionDenied, why); };
    const QFileInfo file(target);
    if (file.isDir())
        refuse(QStringLiteral("\"%1\" is a folder. Choose a name for the copy in it.").arg(target));
    if (belongsTo(FindFile(database), target))
        refuse(QStringLiteral("\"%1\" is the database itself. Choose another name for the copy.").arg(target));
    if (file.exists() && !file.isFile())
        refuse(QStringLiteral("\"%1\" is a device and no file. Choose another name for the copy.").arg(target));
    if (file.exists() && !isWritable(target, W_OK))
        refuse(QStringLiteral("\"%1\" is read-only. Choose another name for the copy.").arg(target));
}

void BackUpDatabase(const QString &database, const QString &target)
{
    RequireBackupTarget(database, target);
    const QString doing = QStringLiteral("Copying the database to \"%1\".").arg(target);
    Source source(database, doing);
    Draft draft(realPath(target), doing);
    copyInto(draft, source, database, doing);
    draft.replace();
}

QString RestoreDatabase(const QString &database, const QString &copy, const std::function<void()> &beforeChange)
{
    const QString target = realPath(database);
    if (belongsTo(target, copy))
        throw RuntimeFailure(Failure::PermissionDenied, QStringLiteral("\"%1\" is the database itself.").arg(copy));
    const QString doing = QStringLiteral("Putting \"%1\" in the place of the database.").arg(copy);
    requireNoJournal(copy);
    PlainSource source(copy, doing);
    Draft draft(target, doing);
    copyInto(draft, source, {}, doing);
    requireWholeCopy(draft.path(), copy);
    draft.complete(target); // only now: it may be read-only
    settle(target);
    beforeChange();
    const QString kept = QFileInfo::exists(target) ? KeepOldFile(target, QStringLiteral("-before-restore")) : QString();
    draft.replace();
    return kept;
}

QString KeepOldDatabase(const QString &database, const QString &version)
{
    const QString path = FindFile(database);
    Source source(path, doingKeep(path));
    return keepBeside(source, path, u"-version-" + version, doingKeep(path));
}

QString KeepOldFile(const QString &path, const QString &ending)
{
    PlainSource source(path, doingKeep(path));
    return keepBeside(source, path, ending, doingKeep(path));
}
