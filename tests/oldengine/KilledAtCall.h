// Runs a program and kills it, with every program that it has started, just before its n-th call that changes a file of
// a folder. It watches the calls with ptrace, as a debugger does, so that it misses no write.
#pragma once

#include <set>
#include <vector>

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>
#include <QFile>
#include <QStringList>

class KilledAtCall
{
public:
    explicit KilledAtCall(const QString &folder) : m_folder(folder) {}

    /// Calls count from 0. Returns false if the program ended before that call.
    bool run(int call, const QString &program, const QStringList &arguments)
    {
        QList<QByteArray> texts{QFile::encodeName(program)};
        for (const QString &argument : arguments)
            texts << QFile::encodeName(argument);
        std::vector<char *> argv;
        for (QByteArray &text : texts)
            argv.push_back(text.data());
        argv.push_back(nullptr);
        const pid_t child = ::fork();
        if (child == 0) {
            ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            ::raise(SIGSTOP);
            ::execv(argv[0], argv.data());
            ::_exit(127);
        }
        m_processes = {child};
        m_left = call;
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(::ptrace(PTRACE_SETOPTIONS, child, nullptr,
                           PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK | PTRACE_O_TRACECLONE |
                               PTRACE_O_EXITKILL),
                  0)
            << "this system does not let a test watch a process";
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        bool isKilled = false;
        while (!m_processes.empty()) {
            const pid_t process = ::waitpid(-1, &status, __WALL);
            if (process < 0)
                break;
            if (WIFEXITED(status) || WIFSIGNALED(status)) {
                m_processes.erase(process);
            } else {
                m_processes.insert(process);
                if (isKilled) // a process that was just being started
                    ::kill(process, SIGKILL);
                else
                    isKilled = goOn(process, status);
            }
        }
        return isKilled;
    }

private:
    /// Lets the process continue. Returns true if it was at the wanted call, and all processes were killed.
    bool goOn(pid_t process, int status)
    {
        const int signal = WSTOPSIG(status);
        if (signal == (SIGTRAP | 0x80) && changesFile(process) && m_left-- == 0) {
            for (const pid_t each : m_processes)
                ::kill(each, SIGKILL);
            return true;
        }
        // A stop that comes from ptrace, or the first stop of a new process, is not a signal for the program.
        const bool isOurs = signal == SIGTRAP || signal == (SIGTRAP | 0x80) || signal == SIGSTOP;
        ::ptrace(PTRACE_SYSCALL, process, nullptr, isOurs ? 0 : signal);
        return false;
    }
    bool changesFile(pid_t process) const
    {
        __ptrace_syscall_info info = {};
        if (::ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof info, &info) <= 0 || info.op != PTRACE_SYSCALL_INFO_ENTRY)
            return false;
        switch (info.entry.nr) {
        case SYS_write:
        case SYS_pwrite64:
        case SYS_ftruncate:
        case SYS_fsync:
        case SYS_fdatasync:
        case SYS_fchmod: {
            const QString name = QString("/proc/%1/fd/%2").arg(process).arg(info.entry.args[0]);
            return QFile::symLinkTarget(name).startsWith(m_folder);
        }
        case SYS_openat: return (info.entry.args[2] & O_CREAT) != 0;
        case SYS_rename:
        case SYS_renameat:
        case SYS_renameat2:
        case SYS_link:
        case SYS_linkat:
        case SYS_unlink:
        case SYS_unlinkat:
        case SYS_chmod:
        case SYS_fchmodat: return true;
        default: return false;
        }
    }

    QString m_folder;
    std::set<pid_t> m_processes;
    int m_left = 0;
};
