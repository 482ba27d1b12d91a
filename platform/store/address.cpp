#include "platform/store/address.h"

#include <cstdlib>
#include <filesystem>

namespace Tamrivo
{

namespace
{

std::string EnvironmentText(const char* name)
{
    const char* text = std::getenv(name);
    return text ? text : "";
}

} // namespace

std::string DefaultStoreAddress()
{
    if (std::string address = EnvironmentText("TAMRIVO_STORE"); !address.empty())
        return address;

    std::filesystem::path dataDirectory = EnvironmentText("XDG_DATA_HOME");
    // A relative path there is to be ignored, by the XDG base directory rules.
    if (!dataDirectory.is_absolute())
        dataDirectory = std::filesystem::path(EnvironmentText("HOME")) / ".local" / "share";
    return dataDirectory / "tamrivo" / "store.sqlite";
}

bool IsPostgresqlAddress(std::string_view address)
{
    return address.starts_with("postgresql://") || address.starts_with("postgres://");
}

std::string SqlitePath(std::string_view address)
{
    constexpr std::string_view scheme = "sqlite://";
    if (address.starts_with(scheme))
        address.remove_prefix(scheme.size());
    return std::string(address);
}

} // namespace Tamrivo
