#include "FaultVfs.h"

#include <csignal>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <sqlite3.h>

namespace {

FaultPlan faultPlan;
bool faultStruck = false;
sqlite3_vfs faultSystem{};
sqlite3_vfs *realSystem = nullptr;

struct FaultFile
{
    sqlite3_file base;
    sqlite3_file *real;
};

sqlite3_file *realOf(sqlite3_file *file) { return reinterpret_cast<FaultFile *>(file)->real; }

/// What a place of a file held before a write that no sync has followed yet; zeros past the end.
struct Unsynced
{
    sqlite3_int64 at;
    std::string content;
};
std::map<sqlite3_file *, std::vector<Unsynced>> unsynced;
std::minstd_rand dice;

void remember(sqlite3_file *f, int count, sqlite3_int64 at)
{
    Unsynced former{at, std::string(std::size_t(count), '\0')};
    realOf(f)->pMethods->xRead(realOf(f), former.content.data(), count, at);
    unsynced[f].push_back(std::move(former));
}

void losePieces()
{
    for (auto &[f, pieces] : unsynced)
        for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece)
            if (dice() % 2)
                realOf(f)->pMethods->xWrite(realOf(f), piece->content.data(), int(piece->content.size()), piece->at);
}

bool isTime()
{
    const bool planned = faultPlan.code != 0 || faultPlan.death != Death::None;
    return planned && faultPlan.after-- <= 0;
}

/// The code to fail with now, or 0.
int strike()
{
    if (!isTime())
        return SQLITE_OK;
    faultStruck = true;
    if (faultPlan.death == Death::PowerCut)
        losePieces();
    if (faultPlan.death != Death::None)
        std::raise(SIGKILL);
    const int code = faultPlan.code;
    if (!faultPlan.forEver)
        faultPlan.code = 0;
    return code;
}

int closeFile(sqlite3_file *f)
{
    unsynced.erase(f);
    return realOf(f)->pMethods->xClose(realOf(f));
}
int readFile(sqlite3_file *f, void *to, int size, sqlite3_int64 at)
{
    return realOf(f)->pMethods->xRead(realOf(f), to, size, at);
}
int writeFile(sqlite3_file *f, const void *from, int size, sqlite3_int64 at)
{
    if (faultPlan.death == Death::PowerCut)
        remember(f, size, at);
    const int code = strike();
    return code ? code : realOf(f)->pMethods->xWrite(realOf(f), from, size, at);
}
int truncateFile(sqlite3_file *f, sqlite3_int64 size) { return realOf(f)->pMethods->xTruncate(realOf(f), size); }
int syncFile(sqlite3_file *f, int flags)
{
    const int code = strike();
    unsynced.erase(f);
    return code ? SQLITE_IOERR_FSYNC : realOf(f)->pMethods->xSync(realOf(f), flags);
}
int sizeOfFile(sqlite3_file *f, sqlite3_int64 *size) { return realOf(f)->pMethods->xFileSize(realOf(f), size); }
int lockFile(sqlite3_file *f, int level) { return realOf(f)->pMethods->xLock(realOf(f), level); }
int unlockFile(sqlite3_file *f, int level) { return realOf(f)->pMethods->xUnlock(realOf(f), level); }
int isLocked(sqlite3_file *f, int *answer) { return realOf(f)->pMethods->xCheckReservedLock(realOf(f), answer); }
int controlFile(sqlite3_file *f, int op, void *argument)
{
    return realOf(f)->pMethods->xFileControl(realOf(f), op, argument);
}
int sectorSize(sqlite3_file *f) { return realOf(f)->pMethods->xSectorSize(realOf(f)); }
int characteristics(sqlite3_file *f) { return realOf(f)->pMethods->xDeviceCharacteristics(realOf(f)); }

constexpr sqlite3_io_methods faultMethods = {
    1,        closeFile,  readFile, writeFile,   truncateFile, syncFile,        sizeOfFile,
    lockFile, unlockFile, isLocked, controlFile, sectorSize,   characteristics, nullptr,
    nullptr,  nullptr,    nullptr,  nullptr,     nullptr,
};

int openFile(sqlite3_vfs *, sqlite3_filename name, sqlite3_file *f, int flags, int *outFlags)
{
    auto *file = reinterpret_cast<FaultFile *>(f);
    file->real = reinterpret_cast<sqlite3_file *>(file + 1);
    const int code = realSystem->xOpen(realSystem, name, file->real, flags, outFlags);
    file->base.pMethods = file->real->pMethods ? &faultMethods : nullptr;
    return code;
}

} // namespace

FaultVfs::FaultVfs()
{
    realSystem = sqlite3_vfs_find(nullptr);
    faultSystem = *realSystem;
    faultSystem.zName = "fault";
    faultSystem.szOsFile = int(sizeof(FaultFile)) + realSystem->szOsFile;
    faultSystem.xOpen = openFile;
    faultSystem.pNext = nullptr;
    sqlite3_vfs_register(&faultSystem, 1);
    plan({});
}

FaultVfs::~FaultVfs()
{
    sqlite3_vfs_unregister(&faultSystem);
    sqlite3_vfs_register(realSystem, 1);
}

void FaultVfs::plan(const FaultPlan &faults)
{
    faultPlan = faults;
    dice.seed(unsigned(faults.after) + 1);
    unsynced.clear();
    faultStruck = false;
}

bool FaultVfs::hasStruck() const { return faultStruck; }
