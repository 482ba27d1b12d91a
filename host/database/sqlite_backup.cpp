#include "host/database/sqlite_backup.h"

#include "host/database/store_failure.h"

#include <memory>

namespace Tamrivo
{

namespace
{

using namespace sqlite_api;

struct Close
{
    void operator()(sqlite3* connection) const { sqlite3_close(connection); }
};
struct Finish
{
    void operator()(sqlite3_backup* backup) const { sqlite3_backup_finish(backup); }
};

[[noreturn]] void RaiseBackupFailure(const std::string& file, int result)
{
    const bool isFull = (result & 0xFF) == SQLITE_FULL;
    throw Failure(isFull ? StoreError::DiskFull : StoreError::Unreachable, "Store",
                  "The backup \"" + file + "\" is not written: " +
                      (isFull ? "there is no room left on its disk. Make room, or choose another "
                                "place"
                              : std::string(sqlite3_errstr(result)) +
                                    ". Check that it can be written there"));
}

} // namespace

void BackUpSqlite(sqlite3* from, const std::string& file, const std::function<void()>& progress)
{
    constexpr int pagesAtOnce = 4096;
    constexpr int mostBeginnings = 3;
    sqlite3* opened = nullptr;
    const int result = sqlite3_open(file.c_str(), &opened);
    const std::unique_ptr<sqlite3, Close> target(opened);
    if (result != SQLITE_OK)
        RaiseBackupFailure(file, result);

    std::unique_ptr<sqlite3_backup, Finish> backup(
        sqlite3_backup_init(opened, "main", from, "main"));
    if (!backup)
        RaiseBackupFailure(file, sqlite3_errcode(opened));
    int beginnings = 1;
    int remaining = 0;
    int step = SQLITE_OK;
    while (step == SQLITE_OK)
    {
        progress();
        step = sqlite3_backup_step(backup.get(), beginnings < mostBeginnings ? pagesAtOnce : -1);
        const int left = sqlite3_backup_remaining(backup.get());
        beginnings += remaining > 0 && left >= remaining ? 1 : 0;
        remaining = left;
    }
    if (step == SQLITE_BUSY || step == SQLITE_LOCKED)
        throw soci::sqlite3_soci_error("", step);
    sqlite3_backup_finish(backup.release());
    if (step != SQLITE_DONE)
        RaiseBackupFailure(file, step);
}

} // namespace Tamrivo
