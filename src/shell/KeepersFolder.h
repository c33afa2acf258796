// The keeper's folder, the current directory of the program: made at the first start with an empty database and the
// lists of names, and open in one Ostrelmark at a time. main() opens it before the main window loads, which makes
// nothing itself and fails where there is no database. A file that is there is never overwritten.
#pragma once

#include <QString>

class KeepersFolder
{
public:
    KeepersFolder() = default;
    ~KeepersFolder();
    KeepersFolder(const KeepersFolder &) = delete;
    KeepersFolder &operator=(const KeepersFolder &) = delete;

    /// Where the desktop keeps such data of its user: ~/.local/share/ostrelmark, or in $XDG_DATA_HOME.
    static QString usual();

    /// Makes what is missing, the name files from `dataFolder`, and goes into the folder. False where another program
    /// has it open, after a box that says so. Throws RuntimeFailure where folder or database cannot be made.
    bool open(const QString &folder, const QString &dataFolder);

private:
    int m_lock = -1; ///< file descriptor of the folder
};
