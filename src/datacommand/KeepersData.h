// The keeper's folder as a verb uses it: its database and options, and the lock
// that keeps the program and other verbs out while the file is changed. A verb
// that only reads takes no lock and works beside the program.
#pragma once

#include <QDir>

#include "logic/shell/Globals.h"
#include "logic/shell/KeepersFolder.h"

class KeepersData
{
public:
    /// Chooses the folder as the program does, and creates nothing. Throws
    /// PathNotFound if there is no such folder.
    explicit KeepersData(const QString &folder);

    const QDir &folder() const { return m_folder; }
    /// The path of the database, whether it is there or not.
    QString databaseName() const;

    /// Locks the folder until this object goes. Throws PermissionDenied where the
    /// program, or another verb that changes the file, has it.
    void lock();
    /// Opens the database of the present version and reads the options. Before
    /// the first change of a day a copy of it is kept, as the program does.
    /// Throws what Database::OpenDatabase throws.
    Globals &open();

private:
    QDir m_folder;
    KeepersFolder m_lock;
    Globals m_globals;
};
