// A file system of the tests: the engine's own one, but that a write or a sync of the disk fails when it is told to.
// Everything opened while it is installed goes through it, so a test sees what a full disk does to an entry.
#pragma once

struct FaultPlan
{
    int code = 0;         ///< the engine's result code to fail with; 0: nothing fails
    int after = 0;        ///< so many writes and syncs still succeed
    bool forEver = false; ///< fails from then on; else once
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
