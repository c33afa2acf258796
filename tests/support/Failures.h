// A disk that is full, and functions that return the failure of a piece of work.
#pragma once

#include <csignal>
#include <functional>
#include <optional>

#include <sys/resource.h>

#include "platform/core/RuntimeFailure.h"

/// The failure that `work` throws, or nothing.
inline std::optional<RuntimeFailure> failureOf(const std::function<void()> &work)
{
    try {
        work();
    } catch (const RuntimeFailure &failure) {
        return failure;
    }
    return std::nullopt;
}

/// The number of that failure; 0 if there is none.
inline int numberOf(const std::function<void()> &work)
{
    const auto failure = failureOf(work);
    return failure ? int(failure->number()) : 0;
}

/// Limits the size of the files that this process writes, as if the disk were full. A write beyond the limit fails or,
/// with `death`, kills the process.
class SmallDisk
{
public:
    SmallDisk(rlim_t bytes, bool death)
    {
        ::signal(SIGXFSZ, death ? SIG_DFL : SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SmallDisk() { ::setrlimit(RLIMIT_FSIZE, &m_former); }

private:
    rlimit m_former{};
};
