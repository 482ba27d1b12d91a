#include "tests/faults/failing_sqlite.h"

#include <sqlite3.h>

#include <cstring>

namespace Tamrivo::Testing
{

namespace
{

FailingSqlite::Fault expected = FailingSqlite::Fault::Call;
int callsLeft = 0; ///< To the one that fails; 0: none does.
bool hasFailed = false;

bool Fails(FailingSqlite::Fault fault)
{
    if (fault != expected)
        return false;
    // A full disk stays full.
    if (fault == FailingSqlite::Fault::FullDisk && hasFailed)
        return true;
    if (callsLeft == 0 || --callsLeft > 0)
        return false;
    hasFailed = true;
    return true;
}

bool CallFails()
{
    return Fails(FailingSqlite::Fault::Call);
}

sqlite3_vfs* realFiles = nullptr;
sqlite3_mem_methods realMemory;

/// A file of the real ones, behind this one's methods.
struct File
{
    sqlite3_file Base;
    sqlite3_file* Real;
};

sqlite3_file* Real(sqlite3_file* file)
{
    return reinterpret_cast<File*>(file)->Real;
}

int Close(sqlite3_file* file)
{
    sqlite3_file* real = Real(file);
    return real->pMethods ? real->pMethods->xClose(real) : SQLITE_OK;
}

int Read(sqlite3_file* file, void* to, int count, sqlite3_int64 at)
{
    return CallFails() ? SQLITE_IOERR_READ : Real(file)->pMethods->xRead(Real(file), to, count, at);
}

int Write(sqlite3_file* file, const void* from, int count, sqlite3_int64 at)
{
    if (Fails(FailingSqlite::Fault::FullDisk))
    {
        // Half of it still finds room.
        Real(file)->pMethods->xWrite(Real(file), from, count / 2, at);
        return SQLITE_FULL;
    }
    return CallFails() ? SQLITE_IOERR_WRITE
                       : Real(file)->pMethods->xWrite(Real(file), from, count, at);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size)
{
    return CallFails() ? SQLITE_IOERR_TRUNCATE : Real(file)->pMethods->xTruncate(Real(file), size);
}

int Sync(sqlite3_file* file, int flags)
{
    return CallFails() ? SQLITE_IOERR_FSYNC : Real(file)->pMethods->xSync(Real(file), flags);
}

int Size(sqlite3_file* file, sqlite3_int64* size)
{
    return CallFails() ? SQLITE_IOERR_FSTAT : Real(file)->pMethods->xFileSize(Real(file), size);
}

int Lock(sqlite3_file* file, int level)
{
    return CallFails() ? SQLITE_IOERR_LOCK : Real(file)->pMethods->xLock(Real(file), level);
}

int Unlock(sqlite3_file* file, int level)
{
    return Real(file)->pMethods->xUnlock(Real(file), level);
}

int IsReserved(sqlite3_file* file, int* reserved)
{
    return CallFails() ? SQLITE_IOERR_CHECKRESERVEDLOCK
                       : Real(file)->pMethods->xCheckReservedLock(Real(file), reserved);
}

int Control(sqlite3_file* file, int operation, void* argument)
{
    return Real(file)->pMethods->xFileControl(Real(file), operation, argument);
}

int SectorSize(sqlite3_file* file)
{
    return Real(file)->pMethods->xSectorSize(Real(file));
}

int Characteristics(sqlite3_file* file)
{
    return Real(file)->pMethods->xDeviceCharacteristics(Real(file));
}

constexpr sqlite3_io_methods Methods = {
    1,       Close,      Read,    Write,      Truncate,        Sync,    Size,    Lock,
    Unlock,  IsReserved, Control, SectorSize, Characteristics, nullptr, nullptr, nullptr,
    nullptr, nullptr,    nullptr};

int Open(sqlite3_vfs*, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags)
{
    auto* own = reinterpret_cast<File*>(file);
    own->Real = reinterpret_cast<sqlite3_file*>(own + 1);
    std::memset(own->Real, 0, static_cast<std::size_t>(realFiles->szOsFile));
    own->Base.pMethods = nullptr;
    if (CallFails())
        return SQLITE_CANTOPEN;
    const int result = realFiles->xOpen(realFiles, name, own->Real, flags, outFlags);
    if (result == SQLITE_OK)
        own->Base.pMethods = &Methods;
    return result;
}

int Delete(sqlite3_vfs*, const char* name, int syncsDirectory)
{
    return CallFails() ? SQLITE_IOERR_DELETE : realFiles->xDelete(realFiles, name, syncsDirectory);
}

int Access(sqlite3_vfs*, const char* name, int flags, int* result)
{
    return CallFails() ? SQLITE_IOERR_ACCESS : realFiles->xAccess(realFiles, name, flags, result);
}

void* Allocate(int size)
{
    return Fails(FailingSqlite::Fault::Memory) ? nullptr : realMemory.xMalloc(size);
}

void* Reallocate(void* memory, int size)
{
    return Fails(FailingSqlite::Fault::Memory) ? nullptr : realMemory.xRealloc(memory, size);
}

} // namespace

void FailingSqlite::Install()
{
    sqlite3_config(SQLITE_CONFIG_GETMALLOC, &realMemory);
    sqlite3_mem_methods memory = realMemory;
    memory.xMalloc = Allocate;
    memory.xRealloc = Reallocate;
    sqlite3_config(SQLITE_CONFIG_MALLOC, &memory);
    // Small pieces would else come out of a store of their own.
    sqlite3_config(SQLITE_CONFIG_LOOKASIDE, 0, 0);
    sqlite3_initialize();

    realFiles = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs files = *realFiles;
    files.zName = "failing";
    files.szOsFile = static_cast<int>(sizeof(File)) + realFiles->szOsFile;
    files.xOpen = Open;
    files.xDelete = Delete;
    files.xAccess = Access;
    sqlite3_vfs_register(&files, 1);
}

void FailingSqlite::FailAt(Fault fault, int call)
{
    expected = fault;
    callsLeft = call;
    hasFailed = false;
}

bool FailingSqlite::HasFailed()
{
    return hasFailed;
}

} // namespace Tamrivo::Testing
