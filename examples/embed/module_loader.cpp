#include "examples/embed/module_loader.h"

#include "component/guid_text.h"
#ifdef _WIN32
#include "component/registry_windows.h"
#else
#include "component/registry_file.h"
#endif

#ifndef _WIN32
#include <dlfcn.h>
#endif

#include <stdexcept>

namespace Embed
{

namespace
{

[[noreturn]] void Fail(const std::string& what)
{
    throw std::runtime_error(what);
}

#ifdef _WIN32

[[noreturn]] void FailOfPlatform(const std::string& what)
{
    const std::error_code error(static_cast<int>(GetLastError()), std::system_category());
    Fail(what + ": " + error.message());
}

void* Open(const std::filesystem::path& path)
{
    const HMODULE module = LoadLibraryW(path.c_str());
    return module ? module : (FailOfPlatform(Tamrivo::Registry::PathText(path)), nullptr);
}

void Close(void* module)
{
    FreeLibrary(static_cast<HMODULE>(module));
}

void* Address(void* module, const char* name)
{
    const auto address = GetProcAddress(static_cast<HMODULE>(module), name);
    return address ? reinterpret_cast<void*>(address) : (FailOfPlatform(name), nullptr);
}

#else

void* Open(const std::filesystem::path& path)
{
    void* const module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    return module ? module : (Fail(dlerror()), nullptr);
}

void Close(void* module)
{
    dlclose(module);
}

void* Address(void* module, const char* name)
{
    void* const address = dlsym(module, name);
    return address ? address : (Fail(dlerror()), nullptr);
}

#endif

template <class Function>
Function* Entry(void* module, const char* name)
{
    return reinterpret_cast<Function*>(Address(module, name));
}

/// Why the module's last call failed, behind a colon; nothing when it doesn't say.
std::string Reason(const Pointer<Tamrivo::IHostSite>& site)
{
    Tamrivo::ErrorRecord failure;
    return site->GetLastFailure(&failure) == S_OK ? ": " + failure.Description : "";
}

} // namespace

LoadedModule::LoadedModule(const std::filesystem::path& path)
    : m_handle(Open(path)),
      m_getClassObject(Entry<GetClassObjectFunction>(m_handle, "DllGetClassObject")),
      m_canUnloadNow(Entry<PlainFunction>(m_handle, "DllCanUnloadNow"))
{}

LoadedModule::~LoadedModule()
{
    if (m_canUnloadNow() == S_OK)
        Close(m_handle);
}

HRESULT LoadedModule::Call(const char* function) const
{
    return Entry<PlainFunction>(m_handle, function)();
}

Created ModuleLoader::Create(const std::string& className)
{
    const auto entry = Tamrivo::Registry::Find(className);
    if (!entry)
        Fail(className + " isn't registered; run \"tamrivo_embed register MODULE\" first");
    const auto classId = Tamrivo::GuidFromText(entry->ClassId);
    if (!classId)
        Fail(className + " is registered under " + entry->ClassId + ", which is no identifier");

    const auto& module = m_modules.try_emplace(entry->ModulePath, entry->ModulePath).first->second;
    Pointer<IClassFactory> factory;
    Pointer<Tamrivo::IHostSite> site;
    if (module.GetClassObject(*classId, IID_IClassFactory, factory.Out()) != S_OK ||
        factory->QueryInterface(Tamrivo::IHostSite::Id, site.Out()) != S_OK)
        Fail(Tamrivo::Registry::PathText(entry->ModulePath) + " doesn't know " + className);
    site->SetHost(&m_host);

    Pointer<IUnknown> object;
    if (factory->CreateInstance(nullptr, IID_IUnknown, object.Out()) != S_OK)
        Fail(className + " can't be created" + Reason(site));
    return {className, std::move(object)};
}

void CallRegistration(const std::string& modulePath, const char* function)
{
    const LoadedModule module(modulePath);
    if (module.Call(function) == S_OK)
        return;
    Pointer<Tamrivo::IHostSite> site;
    module.GetClassObject(Tamrivo::ClassId::Service, Tamrivo::IHostSite::Id, site.Out());
    Fail(modulePath + ": " + function + " failed" + Reason(site));
}

} // namespace Embed
