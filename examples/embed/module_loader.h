#pragma once

#include "component/component.h"

#include <filesystem>
#include <map>
#include <string>

namespace Embed
{

/// A reference to an object of the component object model.
template <class Interface>
class Pointer
{
public:
    Pointer() = default;
    Pointer(Pointer&& other) noexcept : m_pointer(std::exchange(other.m_pointer, nullptr)) {}
    Pointer& operator=(Pointer&& other) noexcept
    {
        std::swap(m_pointer, other.m_pointer);
        return *this;
    }
    ~Pointer()
    {
        if (m_pointer)
            m_pointer->Release();
    }

    Interface* operator->() const { return m_pointer; }
    /// Where a function puts the reference that it gives.
    void** Out() { return reinterpret_cast<void**>(&m_pointer); }

private:
    Interface* m_pointer = nullptr;
};

/// An object that was created by name.
class Created
{
public:
    Created(std::string name, Pointer<IUnknown> object)
        : m_name(std::move(name)), m_object(std::move(object))
    {}

    /// The object as a `T`. Raises `std::runtime_error` when it is none.
    template <class T>
    T& As() const
    {
        Pointer<Tamrivo::IObjectAccess<T>> access;
        T* object = nullptr;
        if (m_object->QueryInterface(Tamrivo::IObjectAccess<T>::Id, access.Out()) != S_OK ||
            access->Get(&object) != S_OK)
            throw std::runtime_error(m_name + " can't be reached that way");
        return *object;
    }

private:
    std::string m_name;
    Pointer<IUnknown> m_object;
};

/// A module with the entry points that every one has.
class LoadedModule
{
public:
    /// Raises `std::runtime_error` when there is no such module, or it lacks an entry point.
    explicit LoadedModule(const std::filesystem::path& path);
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;
    /// Unloads the module unless something that it created is alive.
    ~LoadedModule();

    HRESULT GetClassObject(REFCLSID classId, REFIID iid, void** object) const
    {
        return m_getClassObject(classId, iid, object);
    }
    /// Calls an entry point without arguments.
    HRESULT Call(const char* function) const;

private:
    using GetClassObjectFunction = HRESULT STDMETHODCALLTYPE(REFCLSID, REFIID, void**);
    using PlainFunction = HRESULT STDMETHODCALLTYPE();

    void* m_handle;
    GetClassObjectFunction* m_getClassObject;
    PlainFunction* m_canUnloadNow;
};

/// Finds classes by name in the registry and loads the modules that they stand in.
class ModuleLoader
{
public:
    explicit ModuleLoader(Tamrivo::Host& host) : m_host(host) {}

    /// A new object of the class. Raises `std::runtime_error` that says what is missing.
    Created Create(const std::string& className);

private:
    Tamrivo::Host& m_host;
    std::map<std::filesystem::path, LoadedModule> m_modules;
};

/// Calls `DllRegisterServer` or `DllUnregisterServer` of a module. Raises `std::runtime_error` that
/// says why it failed.
void CallRegistration(const std::string& modulePath, const char* function);

} // namespace Embed
