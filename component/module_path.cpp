#include "component/module_path.h"

#include <stdexcept>

#ifdef _WIN32
#include "component/com.h"
#else
#include <dlfcn.h>
#endif

namespace Tamrivo
{

std::filesystem::path ModulePath()
{
#ifdef _WIN32
    HMODULE module = nullptr;
    wchar_t path[MAX_PATH];
    const DWORD flags =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    const auto* const address = reinterpret_cast<const wchar_t*>(&ModulePath);
    if (GetModuleHandleExW(flags, address, &module) == 0 ||
        GetModuleFileNameW(module, path, MAX_PATH) == MAX_PATH)
        throw std::runtime_error("The module's path is not known");
    return path;
#else
    Dl_info module{};
    if (dladdr(reinterpret_cast<const void*>(&ModulePath), &module) == 0)
        throw std::runtime_error("The module's path is not known");
    return std::filesystem::canonical(module.dli_fname);
#endif
}

} // namespace Tamrivo
