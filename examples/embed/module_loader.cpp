#include "examples/embed/module_loader.h"

#include "component/guid_text.h"
#include "component/registry_file.h"

#include <dlfcn.h>

#include <stdexcept>

namespace Embed
{

namespace
{

[[noreturn]] void Fail(const std::string& what)
{
    throw std::runtime_error(what);
}

void* Open(const std::string& path)
{
    void* const module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    return module ? module : (Fail(dlerror()), nullptr);
}

template <class Function>
Function* Entry(void* module, const char* name)
{
    void* const address = dlsym(module, name);
    return address ? reinterpret_cast<Function*>(address) : (Fail(dlerror()), nullptr);
}

} // namespace

ModuleLoader::~ModuleLoader()
{
    for (const auto& [path, module] : m_modules)
    {
        if (Entry<HRESULT()>(module, "DllCanUnloadNow")() == S_OK)
            dlclose(module);
    }
}

Created ModuleLoader::Create(const std::string& className)
{
    const auto entry = Tamrivo::Registry::Find(className);
    if (!entry)
        Fail(className + " isn't registered; run \"tamrivo_embed register MODULE\" first");
    const auto classId = Tamrivo::GuidFromText(entry->ClassId);
    if (!classId)
        Fail(className + " is registered under " + entry->ClassId + ", which is no identifier");

    using GetClassObject = HRESULT(REFCLSID, REFIID, void**);
    auto* const getClassObject =
        Entry<GetClassObject>(Load(entry->ModulePath), "DllGetClassObject");
    Pointer<IClassFactory> factory;
    Pointer<Tamrivo::IHostSite> site;
    if (getClassObject(*classId, IID_IClassFactory, factory.Out()) != S_OK ||
        factory->QueryInterface(Tamrivo::IHostSite::Id, site.Out()) != S_OK)
        Fail(entry->ModulePath + " doesn't know " + className);
    site->SetHost(&m_host);

    Pointer<IUnknown> object;
    if (factory->CreateInstance(nullptr, IID_IUnknown, object.Out()) != S_OK)
        Fail(className + " can't be created");
    return {className, std::move(object)};
}

void* ModuleLoader::Load(const std::string& path)
{
    void*& module = m_modules[path];
    if (!module)
        module = Open(path);
    return module;
}

void CallRegistration(const std::string& modulePath, const char* function)
{
    if (Entry<HRESULT()>(Open(modulePath), function)() != S_OK)
        Fail(modulePath + ": " + function + " failed");
}

} // namespace Embed
