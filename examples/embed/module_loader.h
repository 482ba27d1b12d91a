#pragma once

#include "component/component.h"

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

/// Finds classes by name in the registry file and loads the modules that they stand in.
class ModuleLoader
{
public:
    explicit ModuleLoader(Tamrivo::Host& host) : m_host(host) {}
    /// Unloads the modules; whatever they created must be gone.
    ~ModuleLoader();

    /// A new object of the class. Raises `std::runtime_error` that says what is missing.
    Created Create(const std::string& className);

private:
    void* Load(const std::string& path);

    Tamrivo::Host& m_host;
    std::map<std::string, void*> m_modules;
};

/// Calls `DllRegisterServer` or `DllUnregisterServer` of a module.
void CallRegistration(const std::string& modulePath, const char* function);

} // namespace Embed
