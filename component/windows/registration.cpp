#include "component/registration.h"

#include "automation/classes.h"
#include "component/class_table.h"
#include "component/guid_text.h"
#include "component/module_path.h"
#include "component/registry_windows.h"
#include "component/windows/registry_writer.h"
#include "component/windows/text.h"

#include <array>

namespace Tamrivo
{

namespace
{

/// The places for classes: of the machine, and of the user, which goes before it.
const std::array roots{HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER};

constexpr std::string_view libraryVersion = "1.0";
/// Of the platform's own marshalling of interfaces by their type library.
constexpr const wchar_t* typeLibraryMarshaller = L"{00020424-0000-0000-C000-000000000046}";
constexpr const wchar_t* platform = sizeof(void*) == 8 ? L"win64" : L"win32";

std::wstring InBraces(std::string_view id)
{
    return L"{" + Wide(id) + L"}";
}

void AddTypeLibrary(std::vector<Registry::Value>& values, const std::wstring& classes,
                    const std::wstring& path)
{
    const std::wstring id = InBraces(Automation::LibraryId);
    const std::wstring version = Wide(libraryVersion);
    const std::wstring key = classes + L"TypeLib\\" + id + L"\\" + version;
    values.insert(values.end(), {{classes + L"TypeLib\\" + id, L"", L""},
                                 {key, L"", L"Tamrivo"},
                                 {key + L"\\0", L"", L""},
                                 {key + L"\\0\\" + platform, L"", path},
                                 {key + L"\\FLAGS", L"", L"0"}});
    for (const Automation::Class* type : Automation::AllClasses)
    {
        const std::wstring face = classes + L"Interface\\" + InBraces(type->InterfaceId);
        values.insert(values.end(), {{face, L"", L"I" + Wide(type->Name)},
                                     {face + L"\\ProxyStubClsid32", L"", typeLibraryMarshaller},
                                     {face + L"\\TypeLib", L"", id},
                                     {face + L"\\TypeLib", L"Version", version}});
    }
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
                                     {key + L"\\ProgID", L"", name},
                                     {key + L"\\TypeLib", L"", InBraces(Automation::LibraryId)}});
    }
    AddTypeLibrary(values, classes, path);
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
