#include "logic/shell/KeepersFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "platform/core/Doors.h"
#include "platform/core/Files.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Draft.h"
#include "store/NewDatabase.h"

namespace {

const QString databaseName = QStringLiteral("OM.MDB");

/// Files and folders that show that a folder was used before: name files, copies, the old file of an upgrade, and a
/// journal, which must never be applied to a new database. Case is ignored.
const QStringList tracesOfUse{QStringLiteral("NAMES?W.TXT"), QStringLiteral("copies"), QStringLiteral("OM-*.MDB"),
                              QStringLiteral("OM.MDB-journal")};

/// What a keeper can do about a failure of the start. Later failures need no such advice: the keeper has a window to go
/// back to.
struct Advice
{
    Failure about;
    const char *text;
};
constexpr char otherFolder[] =
    "Your data can also be in another folder. Start the program with its name: ostrelmark FOLDER";
constexpr Advice startAdvice[] = {
    {Failure::UnrecognizedFormat,
     "If you have a backup, or one of the daily copies in the folder \"copies\", give this "
     "file another name, put the backup into the folder under the name OM.MDB, and start "
     "again."},
    {Failure::DeviceError, "If the disk is failing, put a backup into a folder on another disk, under the name OM.MDB, "
                           "and start the program with the name of that folder: ostrelmark FOLDER"},
    {Failure::PermissionDenied, otherFolder},
    {Failure::PathNotFound, otherFolder},
    {Failure::DiskFull, otherFolder},
};

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
            QStringLiteral("The database %1 was looked for in this folder and is not there:\n%2\n\nThe folder was used "
                           "before: it holds %3.\n\nPut %1, or a backup under that name, into the folder and start "
                           "again. To begin with an empty logbook, first move what is named above to another place.")
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
    m_secondStart.reset(); // while the folder is still locked: its socket has the name that the next program uses
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
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(place.path()).toStdString(), error);
    if (error)
        throwErrno(error.value(), QStringLiteral("The folder for your data could not be made:\n") + place.path());
    if (!lock(place.path())) {
        SecondStart::ask(m_lock); // before the message, so that it comes up in front of the other window
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
        throwErrno(errno, QStringLiteral("The folder of your data cannot be entered:\n") + place.path());
    return true;
}

void KeepersFolder::onSecondStart(std::function<void()> asked)
{
    m_secondStart = std::make_unique<SecondStart>(m_lock, std::move(asked));
}

RuntimeFailure WithAdviceForTheStart(const RuntimeFailure &failure)
{
    for (const Advice &advice : startAdvice)
        if (advice.about == failure.number())
            return RuntimeFailure(failure.number(),
                                  failure.description().section(u'\n', 1) + u"\n\n" + QLatin1String(advice.text));
    return failure;
}
