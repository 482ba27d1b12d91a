#include "component/class_table.h"
#include "component/guid_text.h"
#include "component/module_path.h"
#include "component/registration.h"
#include "component/registry_windows.h"
#include "component/registry_writer.h"

#include <array>

namespace Tamrivo
{

namespace
{

/// The places for classes: of the machine, and of the user, which goes before it.
const std::array roots{HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER};

std::wstring Wide(std::string_view ascii)
{
    return {ascii.begin(), ascii.end()};
}

/// All that is entered for a module at the path.
std::vector<Registry::Value> ValuesFor(const std::wstring& path)
{
    const std::wstring classes = L"Software\\Classes\\";
    std::vector<Registry::Value> values;
    for (const CreatableClass& created : CreatableClasses())
    {
        const std::wstring name = Wide(created.Name);
        const std::wstring id = Wide(GuidText(created.Id));
        const std::wstring key = classes + L"CLSID\\" + id;
        values.insert(values.end(), {{classes + name, L"", name},
                                     {classes + name + L"\\CLSID", L"", id},
                                     {key, L"", name},
                                     {key + L"\\InprocServer32", L"", path},
                                     {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
                                     {key + L"\\ProgID", L"", name}});
    }
    return values;
}

/// Takes away what stands in the place under this module's names, if it leads to the path; an empty
/// path stands for whatever it leads to.
void RemoveFrom(HKEY root, const std::wstring& path)
{
    for (const CreatableClass& created : CreatableClasses())
    {
        const std::wstring key = L"Software\\Classes\\CLSID\\" + Wide(GuidText(created.Id));
        const auto registered = Registry::Read(root, key + L"\\InprocServer32", L"");
        if (!registered || (!path.empty() && *registered != path))
            return;
    }
    Registry::Remove(root, ValuesFor(path));
}

} // namespace

void RegisterClasses()
{
    const std::wstring path = ModulePath().wstring();
    const auto values = ValuesFor(path);
    if (Registry::MayWrite(HKEY_LOCAL_MACHINE))
    {
        Registry::Write(HKEY_LOCAL_MACHINE, values);
        RemoveFrom(HKEY_CURRENT_USER, {});
    }
    else
    {
        Registry::Write(HKEY_CURRENT_USER, values);
    }
}

void UnregisterClasses()
{
    const std::wstring path = ModulePath().wstring();
    for (const HKEY root : roots)
        RemoveFrom(root, path);
}

} // namespace Tamrivo
