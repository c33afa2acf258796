// ostrelmark-read-old FILE DRAFT: reads a file of the old engine into a draft, which must be an empty file, and reports
// on its output how far it is and how it ended (OldOutcome.h). It is a separate program, because a damaged file may
// crash or stall the library that reads it. The limits below end it in such a case, and only the draft is lost.
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
/// The draft needs about as much room as the file. These limits are far above that.
constexpr rlim_t mostGrowth = 16, leastRoom = 64 << 20;

void limit(__rlimit_resource what, rlim_t most)
{
    const rlimit both{most, most};
    ::setrlimit(what, &both);
}

void setLimits(const char *file)
{
#ifndef __SANITIZE_ADDRESS__ // AddressSanitizer needs more than this for itself
    limit(RLIMIT_AS, mostMemory);
#endif
    limit(RLIMIT_CORE, 0);
    struct stat status = {};
    if (::stat(file, &status) == 0)
        limit(RLIMIT_FSIZE, leastRoom + mostGrowth * rlim_t(status.st_size));
    ::alarm(mostSecondsWithoutProgress);
    // These variables would change how the library reads a file.
    for (const char *name : {"MDB_JET3_CHARSET", "MDB_JET4_CHARSET", "MDBICONV", "MDBOPTS"})
        ::unsetenv(name);
}

void say(const OldLine &line)
{
    const QByteArray bytes = WriteOldLine(line);
    if (std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout) != std::size_t(bytes.size()) ||
        std::fflush(stdout) != 0)
        std::_Exit(1); // the program that started this one has ended
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
    std::_Exit(status); // nothing needs to be freed
}
