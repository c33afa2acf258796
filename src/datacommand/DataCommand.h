// The command line of ostrelmark-data: the table of its verbs, their options,
// and what each status means. main() calls it with doors installed. A new verb
// is a function in DataCommand.cpp that offers its options, and a row in the
// table there; the work itself is a file of its own that knows nothing of the
// command line.
#pragma once

#include <span>

/// The statuses of the program.
enum DataStatus {
    DataDone = 0,
    DataFault = 1, ///< something was found, or the work failed
    DataWrongUse = 2
};

/// The arguments begin with the program's name. Returns the status. Failures
/// are lines on stderr.
int RunDataCommand(std::span<char *const> arguments);
