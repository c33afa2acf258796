// Work in a child process, which may be killed in the middle of it.
#pragma once

#include <functional>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "platform/RuntimeFailure.h"

/// The signal that ended the child; 0 where the work came to its end, which it must without a failure.
inline int signalThatEnds(const std::function<void()> &work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        try {
            work();
        } catch (const RuntimeFailure &) {
            ::_exit(3);
        }
        ::_exit(0);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0) << "the child failed";
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}
