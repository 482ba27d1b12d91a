#include "host/store/store_backup.h"

#include "host/database/database.h"
#include "host/store/store.h"
#include "host/store/store_copy.h"

#include <filesystem>

namespace Tamrivo
{

namespace
{

namespace fs = std::filesystem;

[[noreturn]] void RaiseNotWritten(const std::string& file, const std::string& why)
{
    throw Failure(ErrorNumber::InvalidArgument, "Store",
                  "The backup \"" + file + "\" is not written: " + why);
}

void RequirePlace(Store& from, const std::string& file, bool mayOverwrite)
{
    std::error_code error;
    if (!fs::exists(file, error))
        return;
    if (!fs::is_regular_file(file, error))
        RaiseNotWritten(file, "there is something that isn't a file. Name another one");
    if (from.SharedDatabase().Place() == PlaceOfFile(file))
        RaiseNotWritten(file, "it is the store itself. Name another file");
    if (!mayOverwrite)
        RaiseNotWritten(file, "it is there already. Name another file, or overwrite it (--force)");
}

} // namespace

void BackUpStore(Store& from, const std::string& file, bool mayOverwrite)
{
    RequirePlace(from, file, mayOverwrite);
    const std::string part = file + ".part";
    std::error_code error;
    fs::remove(part, error);
    try
    {
        if (!from.SharedDatabase().BackUpTo(part))
        {
            Store copy(part);
            CopyStore(from, copy);
        }
        fs::rename(part, file, error);
        if (error)
            RaiseNotWritten(file, error.message() + ". Name another file");
    }
    catch (...)
    {
        fs::remove(part, error);
        fs::remove(part + "-journal", error);
        if (CurrentError().Number == StoreError::DiskFull)
            RaiseNotWritten(file, "there is no room left on its disk. Make room, or name another "
                                  "place");
        throw;
    }
}

} // namespace Tamrivo
