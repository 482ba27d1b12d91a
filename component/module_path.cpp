#include "component/module_path.h"

#include <stdexcept>

#ifdef _WIN32
#include "component/com.h"
#else
#include <dlfcn.h>
#endif

namespace Tamrivo
{

namespace
{

std::filesystem::path FindModulePath()
{
#ifdef _WIN32
    constexpr DWORD longest = 0x8000;
    HMODULE module = nullptr;
    std::wstring path(longest, L'\0');
    const DWORD flags =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    const auto* const address = reinterpret_cast<const wchar_t*>(&ModulePath);
    if (GetModuleHandleExW(flags, address, &module) != 0)
        path.resize(GetModuleFileNameW(module, path.data(), longest));
    return path.c_str();
#else
    Dl_info module{};
    if (dladdr(reinterpret_cast<const void*>(&ModulePath), &module) == 0)
        return {};
    std::error_code unknown;
    return std::filesystem::canonical(module.dli_fname, unknown);
#endif
}

/// Taken while the module is loaded: later a relative path may lead elsewhere.
const std::filesystem::path pathWhenLoaded = FindModulePath();

} // namespace

const std::filesystem::path& ModulePath()
{
    if (pathWhenLoaded.empty())
        throw std::runtime_error("The module's path is not known");
    return pathWhenLoaded;
}

} // namespace Tamrivo
