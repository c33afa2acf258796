// The command line: a folder, or a request that is answered at once. main() reads it before it connects to the desktop,
// so that the answers also work without a display.
#pragma once

#include <optional>
#include <span>

#include <QString>

struct CommandLine
{
    QString folder;            ///< as given; may be empty (see KeepersFolder::choose)
    std::optional<int> status; ///< if set, the program prints `text` and ends with this status
    QString text;              ///< goes to stdout if the status is 0, otherwise to stderr
};

/// Reads the arguments after the program's name. A wrong one gives status 2 and a line that says what is wrong.
CommandLine ReadCommandLine(std::span<char *const> arguments);
