// ostrelmark-read-old FILE DRAFT: reads one file of the old engine into one draft, an empty file, and tells on its
// output how far it is and how it ended (OldOutcome.h). The start runs it as a program of its own, because a damaged
// file may crash or stall the library that reads it: the limits below end it, and nothing but the draft is lost.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <new>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

#include "oldengine/JetSource.h"

namespace {

constexpr rlim_t mostMemory = rlim_t(1) << 30;
constexpr unsigned mostSecondsWithoutProgress = 60;
/// The draft keeps each number in eight bytes and each text once, with an index or two.
constexpr rlim_t mostGrowth = 16, leastRoom = 64 << 20;

void limit(__rlimit_resource what, rlim_t most)
{
    const rlimit both{most, most};
    ::setrlimit(what, &both);
}

void setLimits(const char *file)
{
#ifndef __SANITIZE_ADDRESS__ // whose shadow alone takes more
    limit(RLIMIT_AS, mostMemory);
#endif
    limit(RLIMIT_CORE, 0);
    struct stat status = {};
    if (::stat(file, &status) == 0)
        limit(RLIMIT_FSIZE, leastRoom + mostGrowth * rlim_t(status.st_size));
    ::alarm(mostSecondsWithoutProgress);
    // They would change how the library reads a file.
    for (const char *name : {"MDB_JET3_CHARSET", "MDB_JET4_CHARSET", "MDBICONV", "MDBOPTS"})
        ::unsetenv(name);
}

void say(const OldLine &line)
{
    const QByteArray bytes = WriteOldLine(line);
    if (std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout) != std::size_t(bytes.size()) ||
        std::fflush(stdout) != 0)
        std::_Exit(1); // nobody listens any more
}

void tellProgress(const OldProgress &progress)
{
    ::alarm(mostSecondsWithoutProgress);
    static OldProgress last{{}, -1};
    if (progress.table != last.table || progress.percent != last.percent)
        say(progress);
    last = progress;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("Usage: ostrelmark-read-old FILE DRAFT\nOstrelmark runs this program by itself.\n", stderr);
        return 2;
    }
    setLimits(argv[1]);
    int status = 0;
    try {
        JetSource source(QFile::decodeName(argv[1]));
        say(CopyOldDatabase(source, QFile::decodeName(argv[2]), tellProgress));
    } catch (const RuntimeFailure &failure) {
        say(failure);
        status = 1;
    } catch (const std::bad_alloc &) {
        say(RuntimeFailure(Failure::OutOfMemory));
        status = 1;
    }
    std::_Exit(status); // what the library has not freed goes with the process
}
