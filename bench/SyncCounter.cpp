#include "SyncCounter.h"

#include <sys/syscall.h>
#include <unistd.h>

namespace {
long calls = 0;
}

long syncCalls() { return calls; }

// A function of this name in the program replaces that of the system library, for all libraries of the process.
extern "C" int fsync(int file)
{
    ++calls;
    return int(syscall(SYS_fsync, file));
}

extern "C" int fdatasync(int file)
{
    ++calls;
    return int(syscall(SYS_fdatasync, file));
}
