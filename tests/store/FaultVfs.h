// An SQLite file system for tests. It is the engine's own, except that a write or sync fails, or the process is killed
// in it, as a test plans it. Every file opened while it is installed goes through it, so a test sees what a full disk
// or a power cut does to an entry.
#pragma once

#include <sqlite3.h>

/// How the process ends during a write or a sync. PowerCut leaves the disk as a power cut does: of everything that was
/// written since the last sync, only some pieces are on it.
enum class Death { None, Killed, PowerCut };

struct FaultPlan
{
    int code = 0;              ///< the engine's result code to fail with; 0 for no failure
    int after = 0;             ///< how many writes and syncs succeed first
    bool forEver = false;      ///< later ones fail as well; else only one fails
    Death death = Death::None; ///< instead of a failure
};

class FaultVfs
{
public:
    FaultVfs();
    ~FaultVfs();

    void plan(const FaultPlan &faults);
    /// Whether the planned fault has happened.
    bool hasStruck() const;
};
