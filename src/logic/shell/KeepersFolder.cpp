#include "logic/shell/KeepersFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "platform/core/Doors.h"
#include "platform/core/Files.h"
#include "platform/core/RuntimeFailure.h"
#include "store/NewDatabase.h"

namespace {

const QString databaseName = QStringLiteral("OM.MDB");

/// Files and folders that show that a folder was used before: name files, copies, the old file of an upgrade, and a
/// journal, which must never be applied to a new database. Case is ignored.
const QStringList tracesOfUse{QStringLiteral("NAMES?W.TXT"), QStringLiteral("copies"), QStringLiteral("OM-*.MDB"),
                              QStringLiteral("OM.MDB-journal")};

/// Throws if the folder had a database before, because an empty one in its place would look as if all data were lost.
void makeDatabase(const QDir &folder)
{
    const QString name = folder.filePath(databaseName);
    if (!FindFile(name).isEmpty())
        return;
    const QStringList traces =
        folder.entryList(tracesOfUse, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    if (!traces.isEmpty())
        throw RuntimeFailure(
            Failure::CouldNotFindFile,
            QStringLiteral("The database %1 was looked for in the folder %2. It is not there, but the folder was used "
                           "before: it holds %3.\n\nPut %1, or a backup under that name, into the folder and start "
                           "again. To begin with an empty logbook, move what is named above to another place first.")
                .arg(databaseName, folder.path(), traces.join(QStringLiteral(", "))));
    CreateDatabase(name);
}

/// A failed copy is not reported: the windows that read the name files say if one is missing.
void copyNameFiles(const QDir &from, const QDir &folder)
{
    for (const QString &name : from.entryList({QStringLiteral("NAMES?W.TXT")}, QDir::Files))
        if (FindFile(folder.filePath(name)).isEmpty())
            QFile::copy(from.filePath(name), folder.filePath(name));
}

} // namespace

KeepersFolder::~KeepersFolder()
{
    if (m_lock >= 0)
        ::close(m_lock);
}

QString KeepersFolder::choose(const QString &argument)
{
    if (!argument.isEmpty())
        return argument;
    if (!FindFile(databaseName).isEmpty())
        return QDir::currentPath();
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/ostrelmark";
}

bool KeepersFolder::lock(const QString &folder)
{
    // The lock is on the folder itself. The system releases it when the process ends, in whatever way.
    m_lock = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    return m_lock < 0 || ::flock(m_lock, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool KeepersFolder::open(const QString &folder, const QString &dataFolder)
{
    const QDir place(QDir(folder).absolutePath());
    if (!QDir().mkpath(place.path()))
        throw RuntimeFailure(Failure::PathNotFound,
                             QStringLiteral("The folder %1 for your data could not be made.").arg(place.path()));
    if (!lock(place.path())) {
        MsgBox(QStringLiteral("Another Ostrelmark has the logbook in this folder open:\n%1\n\nGo on in its window. If "
                              "you find none, log out and in again, which ends it. A second logbook can be open "
                              "beside it from a folder of its own: ostrelmark FOLDER")
                   .arg(place.path()),
               vbInformation);
        return false;
    }
    makeDatabase(place); // before the name files, which without a database mean that the database was lost
    copyNameFiles(QDir(dataFolder), place);
    if (!QDir::setCurrent(place.path()))
        throw RuntimeFailure(Failure::PermissionDenied,
                             QStringLiteral("The folder %1 of your data cannot be entered.").arg(place.path()));
    return true;
}
