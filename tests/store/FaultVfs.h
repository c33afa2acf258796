// A file system of the tests: the engine's own one, but that a write or a sync of the disk fails when it is told to, or
// the process is killed in it. Everything opened while it is installed goes through it, so a test sees what a full disk
// or a power cut does to an entry.
#pragma once

#include <sqlite3.h>

/// How the process ends in the middle of a write or a sync: killed, or killed with the disk as a power cut leaves it,
/// where of all that was written since the last sync only some pieces came to the disk.
enum class Death { None, Killed, PowerCut };

struct FaultPlan
{
    int code = 0;              ///< the engine's result code to fail with; 0: nothing fails
    int after = 0;             ///< so many writes and syncs still succeed
    bool forEver = false;      ///< fails from then on; else once
    Death death = Death::None; ///< instead of a failure
};

class FaultVfs
{
public:
    FaultVfs();
    ~FaultVfs();
    FaultVfs(const FaultVfs &) = delete;
    FaultVfs &operator=(const FaultVfs &) = delete;

    void plan(const FaultPlan &faults);
    /// Has the planned fault come about?
    bool hasStruck() const;
};
