#include "platform/panels/panel_file.h"

#include "core/error.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <system_error>

namespace Tamrivo
{

namespace
{

[[noreturn]] void Refuse(const std::string& path, const std::string& what, int number)
{
    throw Failure(ErrorNumber::InvalidArgument, "PanelFile",
                  "The file \"" + path + "\" can't be " + what + ": " +
                      std::generic_category().message(number));
}

void Write(const std::string& path, const std::filesystem::path& target,
           std::span<const std::shared_ptr<BusinessObject>> loci, const LociProgress& progress)
{
    errno = 0;
    std::ofstream file(target, std::ios::binary);
    if (file)
        WritePanelTable(file, loci, progress);
    file.close();
    if (!file)
        Refuse(path, "written", errno);
}

} // namespace

PanelReading ReadPanelFile(const std::string& path)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               &std::fclose);
    std::string text;
    char block[65536];
    std::size_t length = 1;
    while (file && length > 0)
    {
        length = std::fread(block, 1, sizeof block, file.get());
        text.append(block, length);
    }
    if (!file || std::ferror(file.get()) != 0)
        Refuse(path, "read", errno);
    return ReadPanelTable(text);
}

void WritePanelFile(const std::string& path, std::span<const std::shared_ptr<BusinessObject>> loci,
                    const LociProgress& progress)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::path target = fs::exists(path, error) ? fs::canonical(path) : fs::path(path);
    if (fs::exists(target, error) && !fs::is_regular_file(target, error))
    {
        Write(path, target, loci, progress);
        return;
    }
    fs::path part = target;
    part += ".part";
    try
    {
        Write(path, part, loci, progress);
        fs::rename(part, target, error);
        if (error)
            Refuse(path, "written", error.value());
    }
    catch (...)
    {
        fs::remove(part, error);
        throw;
    }
}

} // namespace Tamrivo
