#include "FaultVfs.h"

#include <csignal>
#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

FaultPlan faultPlan;
bool faultStruck = false;
sqlite3_vfs faultSystem{};
sqlite3_vfs *realSystem = nullptr;

/// The engine's methods of an open file, with our own for writing, syncing and closing.
struct FaultMethods : sqlite3_io_methods
{
    const sqlite3_io_methods *real;
};

const sqlite3_io_methods *realOf(sqlite3_file *file) { return static_cast<const FaultMethods *>(file->pMethods)->real; }

/// What a place of a file held before a write that was not synced since; zeros past the end of the file.
struct Unsynced
{
    sqlite3_file *file;
    sqlite3_int64 at;
    std::string content;
};
std::vector<Unsynced> unsynced;
std::minstd_rand dice;

void losePieces()
{
    for (auto piece = unsynced.rbegin(); piece != unsynced.rend(); ++piece)
        if (dice() % 2)
            realOf(piece->file)->xWrite(piece->file, piece->content.data(), int(piece->content.size()), piece->at);
}

/// Returns the code to fail with now, or 0; kills the process if that is planned.
int strike()
{
    const bool planned = faultPlan.code != 0 || faultPlan.death != Death::None;
    if (!planned || faultPlan.after-- > 0)
        return SQLITE_OK;
    faultStruck = true;
    if (faultPlan.death == Death::PowerCut)
        losePieces();
    if (faultPlan.death != Death::None)
        std::raise(SIGKILL);
    return faultPlan.forEver ? faultPlan.code : std::exchange(faultPlan.code, 0);
}

int writeOrFail(sqlite3_file *file, const void *from, int size, sqlite3_int64 at)
{
    if (faultPlan.death == Death::PowerCut) {
        std::string former(std::size_t(size), '\0');
        realOf(file)->xRead(file, former.data(), size, at);
        unsynced.push_back({file, at, std::move(former)});
    }
    const int code = strike();
    return code ? code : realOf(file)->xWrite(file, from, size, at);
}

int syncOrFail(sqlite3_file *file, int flags)
{
    const int code = strike();
    std::erase_if(unsynced, [file](const Unsynced &piece) { return piece.file == file; });
    return code ? SQLITE_IOERR_FSYNC : realOf(file)->xSync(file, flags);
}

int closeFile(sqlite3_file *file)
{
    std::erase_if(unsynced, [file](const Unsynced &piece) { return piece.file == file; });
    return realOf(file)->xClose(file);
}

int openFile(sqlite3_vfs *, sqlite3_filename name, sqlite3_file *file, int flags, int *outFlags)
{
    static std::map<const sqlite3_io_methods *, FaultMethods> methods; // differ with the kind of locking
    const int code = realSystem->xOpen(realSystem, name, file, flags, outFlags);
    if (const sqlite3_io_methods *real = file->pMethods) {
        FaultMethods &own = methods[real] = {*real, real};
        own.iVersion = 1; // no shared or mapped memory, so that everything goes through a write
        own.xWrite = writeOrFail;
        own.xSync = syncOrFail;
        own.xClose = closeFile;
        file->pMethods = &own;
    }
    return code;
}

} // namespace

FaultVfs::FaultVfs()
{
    realSystem = sqlite3_vfs_find(nullptr);
    faultSystem = *realSystem;
    faultSystem.zName = "fault";
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
