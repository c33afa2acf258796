// The command line of ostrelmark-data: the table of its verbs, their options, and the meaning of each exit status.
// main() calls it after it has installed the doors. A new verb is a function in DataCommand.cpp that adds its options,
// and a row in the table there. The work itself is in a file of its own that does not know the command line.
#pragma once

#include <span>

/// The exit statuses of the program.
enum DataStatus {
    DataDone = 0,
    DataFault = 1, ///< something was found, or the work failed
    DataWrongUse = 2
};

/// The first argument is the program's name. Returns the exit status. Failures are printed on stderr.
int RunDataCommand(std::span<char *const> arguments);
