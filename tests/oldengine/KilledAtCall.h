// Runs a piece of work in a process and kills it, with every program that it has started, just before its n-th call
// that changes a file of a folder. It watches the calls with ptrace, as a debugger does, so that it misses no write.
#pragma once

#include <functional>
#include <set>

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>
#include <QFile>

/// How many calls lie between two kills: 1 in a run with --kills=all.
inline int KillStride(int otherwise)
{
    const auto arguments = testing::internal::GetArgvs();
    return std::ranges::count(arguments, "--kills=all") > 0 ? 1 : otherwise;
}

/// Whether the process is about to make a call that changes a file of the folder, or any file by its name.
inline bool IsAtChange(pid_t process, const QString &folder)
{
    static const std::set<quint64> byNumber{SYS_write, SYS_pwrite64,  SYS_ftruncate,
                                            SYS_fsync, SYS_fdatasync, SYS_fchmod};
    static const std::set<quint64> byName{SYS_rename, SYS_renameat, SYS_renameat2, SYS_link,    SYS_linkat,
                                          SYS_unlink, SYS_unlinkat, SYS_chmod,     SYS_fchmodat};
    __ptrace_syscall_info info = {};
    if (::ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof info, &info) <= 0 || info.op != PTRACE_SYSCALL_INFO_ENTRY)
        return false;
    if (byNumber.contains(info.entry.nr))
        return QFile::symLinkTarget(QString("/proc/%1/fd/%2").arg(process).arg(info.entry.args[0])).startsWith(folder);
    return byName.contains(info.entry.nr) || (info.entry.nr == SYS_openat && (info.entry.args[2] & O_CREAT) != 0);
}

/// Runs the work in a process of its own. Calls count from 0. Returns false if the work ended before that call.
inline bool KillAtCall(int call, const QString &folder, const std::function<void()> &work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::setpgid(0, 0); // leads a group, to which all processes that it starts belong
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        work();
        ::_exit(0);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(::ptrace(PTRACE_SETOPTIONS, child, nullptr,
                       PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK | PTRACE_O_TRACECLONE |
                           PTRACE_O_EXITKILL),
              0)
        << "this system does not let a test watch a process";
    ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    bool isKilled = false;
    for (pid_t process = 0; (process = ::waitpid(-1, &status, __WALL)) > 0;) {
        if (!WIFSTOPPED(status))
            continue;
        const int signal = WSTOPSIG(status);
        const bool isCall = signal == (SIGTRAP | 0x80);
        if (isCall && IsAtChange(process, folder) && call-- == 0)
            isKilled = ::kill(-child, SIGKILL) == 0;
        // A stop that comes from ptrace, or the first stop of a new process, is not a signal for the program.
        const bool isOurs = isCall || signal == SIGTRAP || signal == SIGSTOP;
        ::ptrace(PTRACE_SYSCALL, process, nullptr, isOurs ? 0 : signal);
    }
    return isKilled;
}
