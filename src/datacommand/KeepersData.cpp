#include "datacommand/KeepersData.h"

#include "datacommand/TerminalDoors.h"
#include "logic/shell/Options.h"
#include "platform/core/Files.h"
#include "platform/core/RuntimeFailure.h"
#include "store/Version.h"

KeepersData::KeepersData(const QString &folder) : m_folder(QDir(KeepersFolder::choose(folder)).absolutePath())
{
    if (!m_folder.exists())
        throw RuntimeFailure(Failure::PathNotFound, QStringLiteral("There is no folder %1.").arg(m_folder.path()));
}

QString KeepersData::databaseName() const
{
    const QString name = m_folder.filePath(QStringLiteral("OM.MDB"));
    const QString found = FindFile(name);
    return found.isEmpty() ? name : found;
}

void KeepersData::lock()
{
    if (!m_lock.lock(m_folder.path()))
        throw RuntimeFailure(
            Failure::PermissionDenied,
            QStringLiteral("Ostrelmark has the folder %1 open. Close it and try again.").arg(m_folder.path()));
}

Globals &KeepersData::open()
{
    m_globals.gDatabaseName = databaseName();
    m_globals.gDatabase = Database::OpenDatabase(m_globals.gDatabaseName);
    m_globals.gDbVersion = ReadDatabaseVersion(*m_globals.gDatabase);
    if (m_globals.gDbVersion != presentDatabaseVersion)
        throw RuntimeFailure(Failure::UnrecognizedFormat, QStringLiteral("%1 is of another version. Start "
                                                                         "Ostrelmark once, which upgrades it.")
                                                              .arg(m_globals.gDatabaseName));
    ReadOptions(m_globals);
    m_globals.gDatabase->KeepDailyCopies(Complain);
    return m_globals;
}
