// Counts how often this process has asked the system to sync a file or a folder to disk.
#pragma once

/// The number of calls since the process began.
long syncCalls();
