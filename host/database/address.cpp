#include "host/database/address.h"

#include "core/error.h"

#include <cstdlib>
#include <filesystem>
#include <regex>

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
    std::string_view path = address;
    if (path.starts_with(scheme))
        path.remove_prefix(scheme.size());
    const std::size_t mark = path.find("://");
    if (path.empty() || (mark != std::string_view::npos && mark == path.find_first_of(":/")))
        throw Failure(ErrorNumber::InvalidArgument, "Store",
                      "\"" + AddressWithoutPassword(std::string(address)) +
                          "\" is no address of a store. Name a file, or a PostgreSQL database as "
                          "postgresql://USER@SERVER/DATABASE");
    return std::string(path);
}

std::string AddressWithoutPassword(const std::string& address)
{
    static const std::regex afterUser("^([a-z]+://[^:/@]*):.*@");
    static const std::regex asParameter("([?&][a-z]*password=)[^&]*");
    return std::regex_replace(std::regex_replace(address, afterUser, "$1:***@"), asParameter,
                              "$1***");
}

} // namespace Tamrivo
