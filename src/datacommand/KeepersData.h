// The keeper's folder for a verb: its database and options, and the lock that keeps out the program and other verbs
// while the file is being changed. A verb that only reads takes no lock, and can run beside the program.
#pragma once

#include <QDir>

#include "logic/shell/Globals.h"
#include "logic/shell/KeepersFolder.h"

class KeepersData
{
public:
    /// Chooses the folder as the program does, but creates nothing. Throws PathNotFound if there is no such folder.
    explicit KeepersData(const QString &folder);

    const QDir &folder() const { return m_folder; }
    /// The path of the database, which may not exist.
    QString databaseName() const;

    /// Locks the folder as long as this object exists. Throws PermissionDenied if the program, or another verb that
    /// changes the file, holds the lock.
    void lock();
    /// Opens the database, which must have the present version, and reads the options. As in the program, a copy is
    /// made before the first change of a day. Throws what Database::OpenDatabase throws.
    Globals &open();

private:
    QDir m_folder;
    KeepersFolder m_lock;
    Globals m_globals;
};
