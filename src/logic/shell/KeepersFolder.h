// The keeper's folder, the current directory of the program: made at the first start with an empty database and the
// lists of names, and open in one Ostrelmark at a time. main() opens it before the main window loads, which makes
// nothing itself and fails where there is no database. A file that is there is never overwritten, and a database that
// was lost is never replaced by an empty one.
#pragma once

#include <QString>

class KeepersFolder
{
public:
    KeepersFolder() = default;
    ~KeepersFolder();
    KeepersFolder(const KeepersFolder &) = delete;
    KeepersFolder &operator=(const KeepersFolder &) = delete;

    /// The argument, if it is not empty; else the current directory, if it holds a database; else the usual folder,
    /// ostrelmark in $XDG_DATA_HOME or in ~/.local/share.
    static QString choose(const QString &argument);

    /// Makes what is missing, the name files from `dataFolder`, and goes into the folder. False where another program
    /// has it open, after a box that says so. Throws RuntimeFailure where folder or database cannot be made, and
    /// CouldNotFindFile where the folder was used before and has lost its database.
    bool open(const QString &folder, const QString &dataFolder);

    /// Locks a folder that is there until this object goes. False where another program has it. Where a file system
    /// knows no such lock there is none, and the database's own locks guard the data alone.
    bool lock(const QString &folder);

private:
    int m_lock = -1; ///< file descriptor of the folder
};
