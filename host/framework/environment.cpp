#include "host/framework/environment.h"

#include "core/locale.h"

#include <cstdlib>
#include <stdexcept>

namespace Tamrivo
{

namespace
{

std::filesystem::path Variable(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

} // namespace

std::filesystem::path StateDirectory()
{
    // A relative path in the variable is to be ignored (XDG base directories).
    const auto base = Variable("XDG_STATE_HOME");
    return (base.is_absolute() ? base : Variable("HOME") / ".local" / "state") / "tamrivo";
}

std::filesystem::path LogFile()
{
    return StateDirectory() / "tamrivo.log";
}

void UseEnvironmentLocale()
{
    try
    {
        SetTextLocale(std::locale(""));
    }
    catch (const std::runtime_error&)
    {
        SetTextLocale(std::locale::classic());
    }
}

} // namespace Tamrivo
