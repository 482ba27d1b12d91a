#include "host/panels/whole_file.h"

#include "core/error.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace Tamrivo
{

namespace
{

[[noreturn]] void Refuse(const std::string& path, int number)
{
    throw Failure(ErrorNumber::InvalidArgument, "PanelFile",
                  "The file \"" + path +
                      "\" can't be written: " + std::generic_category().message(number));
}

void Write(const std::string& path, const std::filesystem::path& target,
           const std::function<void(std::ostream&)>& write)
{
    errno = 0;
    std::ofstream file(target, std::ios::binary);
    if (file)
        write(file);
    file.close();
    if (!file)
        Refuse(path, errno);
}

} // namespace

void WriteWholeFile(const std::string& path, const std::function<void(std::ostream&)>& write)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path target = fs::exists(path, error) ? fs::canonical(path) : fs::path(path);
    if (fs::exists(target, error) && !fs::is_regular_file(target, error))
    {
        Write(path, target, write);
        return;
    }
    fs::path part = target;
    part += ".part";
    try
    {
        Write(path, part, write);
        fs::rename(part, target, error);
        if (error)
            Refuse(path, error.value());
    }
    catch (...)
    {
        fs::remove(part, error);
        throw;
    }
}

} // namespace Tamrivo
