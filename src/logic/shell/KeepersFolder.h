// The folder with the keeper's data, which is the current directory of the program. At the first start it is made, with
// an empty database and the name files. Only one Ostrelmark at a time has it open. main() opens it before it loads the
// main window, which creates nothing itself and fails if there is no database. An existing file is never overwritten,
// and a lost database is never replaced by an empty one.
#pragma once

#include <memory>

#include <QString>

#include "logic/shell/SecondStart.h"
#include "platform/core/RuntimeFailure.h"

class KeepersFolder
{
public:
    KeepersFolder() = default;
    ~KeepersFolder();
    KeepersFolder(const KeepersFolder &) = delete;
    KeepersFolder &operator=(const KeepersFolder &) = delete;

    /// Returns the argument if it is not empty, else the current directory if it holds a database, else the default
    /// folder: ostrelmark in $XDG_DATA_HOME or in ~/.local/share.
    static QString choose(const QString &argument);

    /// Makes what is missing, with the name files of `dataFolder`, and makes the folder the current directory. If
    /// another program has it open, that program is asked to come to the front, a message says so, and the result is
    /// false. Throws RuntimeFailure if the folder or the database cannot be made, and CouldNotFindFile if the folder
    /// was used before and has lost its database.
    bool open(const QString &folder, const QString &dataFolder);

    /// What to do when the program is started once more on the folder that is open here.
    void onSecondStart(std::function<void()> asked);

    /// Locks a folder that is there until this object goes. False where another program has it. Where a file system
    /// knows no such lock there is none, and the database's own locks guard the data alone.
    bool lock(const QString &folder);

private:
    int m_lock = -1; ///< file descriptor of the folder
    std::unique_ptr<SecondStart> m_secondStart;
};

/// The failure of a start, with what a keeper can do about it: put a backup into the folder, or use another folder.
RuntimeFailure WithAdviceForTheStart(const RuntimeFailure &failure);
