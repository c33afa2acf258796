// The command line: a folder, or a question that is answered at once. main() reads it before anything of the desktop is
// touched, so that the answers come without a display as well.
#pragma once

#include <optional>
#include <span>

#include <QString>

struct CommandLine
{
    QString folder;            ///< as given; may be empty (see KeepersFolder::choose)
    std::optional<int> status; ///< there is nothing more to do: the status to end with
    QString text;              ///< to be printed then: on stdout where the status is 0, else on stderr
    bool namesDisplay = false; ///< an option of the toolkit says where the windows go
};

/// Of the arguments after the program's name. A wrong one gives status 2 and a line that says so.
CommandLine ReadCommandLine(std::span<char *const> arguments);
/// Whether windows have somewhere to go, by the command line and the environment: without, the toolkit would abort.
bool HasDisplay(const CommandLine &line);
