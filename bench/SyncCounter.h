// Counts how often this process has asked the system to bring a file or a folder to the disk.
#pragma once

/// Since the process began.
long syncCalls();
