#include "datacommand/Restore.h"

#include <algorithm>

#include <QDateTime>
#include <QLocale>

#include "datacommand/DataCommand.h"
#include "datacommand/KeepersData.h"
#include "datacommand/TerminalDoors.h"
#include "platform/core/Files.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Backup.h"
#include "store/Copies.h"
#include "store/Inspection.h"
#include "store/Version.h"

namespace {

const QString copiesFolder = QLatin1String(DailyCopies::folderName);

/// What a file contains, or why this cannot be said.
QString contentOf(const QString &path)
{
    try {
        return ContentInWords(CountContent(*Database::OpenDatabase(path)));
    } catch (const RuntimeFailure &failure) {
        return failure.number() == Failure::UnrecognizedFormat
                   ? QStringLiteral("(not a database of this release, or damaged)")
                   : QStringLiteral("(cannot be read)");
    }
}

/// Paths of all copies, newest first.
QFileInfoList copiesIn(const KeepersData &data)
{
    QFileInfoList all;
    const QFileInfo present(data.databaseName());
    for (const QDir &folder : {data.folder(), QDir(data.folder().filePath(copiesFolder))})
        for (const QFileInfo &file : folder.entryInfoList({QStringLiteral("*.MDB")}, QDir::Files))
            if (file != present)
                all << file;
    std::ranges::stable_sort(all, std::ranges::greater(), &QFileInfo::lastModified);
    return all;
}

/// The path of the copy that the keeper named.
QString findCopy(const KeepersData &data, const QString &name)
{
    const QDir daily(data.folder().filePath(copiesFolder));
    for (const QString &path : {name, data.folder().filePath(name), daily.filePath(name),
                                daily.filePath(QStringLiteral("OM-%1.MDB").arg(name))})
        if (const QString found = FindFile(path); !found.isEmpty())
            return found;
    throw RuntimeFailure(Failure::FileNotFound, QStringLiteral("There is no copy %1. \"ostrelmark-data "
                                                               "restore\" lists those of the folder %2.")
                                                    .arg(name, data.folder().path()));
}

/// Makes the daily copy, as before any first change of a day. If the database cannot be opened there is no such copy,
/// but RestoreDatabase still keeps the file.
void keepTodaysCopy(const KeepersData &data)
{
    try {
        const auto database = Database::OpenDatabase(data.databaseName());
        database->KeepDailyCopies(Complain);
        database->AboutToChange();
    } catch (const RuntimeFailure &) {
        return;
    }
}

} // namespace

QString ContentInWords(const FileContent &content)
{
    return QStringLiteral("%1, %2, %3")
        .arg(Counted(content.tanks, "tank", "tanks"), Counted(content.entries, "entry", "entries"),
             Counted(content.reminders, "reminder", "reminders"));
}

int ListCopies(KeepersData &data)
{
    const QFileInfoList all = copiesIn(data);
    if (all.isEmpty())
        Say(QStringLiteral("There are no copies in the folder %1.").arg(data.folder().path()));
    for (const QFileInfo &file : all)
        Say(QStringLiteral("%1 %2 bytes  %3  %4")
                .arg(file.lastModified().toString(QStringLiteral("yyyy-MM-dd hh:mm")))
                .arg(QLocale::c().toString(file.size()), 12)
                .arg(data.folder().relativeFilePath(file.filePath()), contentOf(file.filePath())));
    return DataDone;
}

int RestoreCopy(KeepersData &data, const QString &name)
{
    data.lock();
    const QString copy = findCopy(data, name);
    const QString kept = RestoreDatabase(data.databaseName(), copy, [&data] { keepTodaysCopy(data); });
    const auto database = Database::OpenDatabase(data.databaseName());
    Say(QStringLiteral("%1 is in place: %2.").arg(copy, ContentInWords(CountContent(*database))));
    if (!kept.isEmpty())
        Say(QStringLiteral("The former database was kept as %1.").arg(kept));
    if (ReadDatabaseVersion(*database) != presentDatabaseVersion)
        Say(QStringLiteral("It is of an earlier version. The next start of "
                           "Ostrelmark upgrades it."));
    return DataDone;
}
