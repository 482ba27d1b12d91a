#pragma once

#include "component/component.h"

#include <dlfcn.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

namespace Tamrivo
{

/// The module as a program has it that loads it at run time.
class LoadedModule
{
public:
    explicit LoadedModule(const std::filesystem::path& path = TAMRIVO_MODULE)
        : m_handle(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL))
    {
        if (!m_handle)
            throw std::runtime_error(dlerror());
    }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;
    ~LoadedModule() { Unload(); }

    bool IsLoaded() const { return m_handle != nullptr; }
    void Unload()
    {
        if (m_handle)
            dlclose(std::exchange(m_handle, nullptr));
    }

    HRESULT Call(const char* function) const { return Entry<HRESULT()>(function)(); }

    HRESULT GetClassObject(const CLSID& classId, const IID& iid, void** object) const
    {
        return Entry<HRESULT(REFCLSID, REFIID, void**)>("DllGetClassObject")(classId, iid, object);
    }

private:
    template <class Function>
    Function* Entry(const char* name) const
    {
        return reinterpret_cast<Function*>(dlsym(m_handle, name));
    }

    void* m_handle;
};

/// A reference that is released in the end.
template <class Interface>
class Held
{
public:
    Held() = default;
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
    ~Held() { Drop(); }

    void Drop()
    {
        if (Pointer)
            std::exchange(Pointer, nullptr)->Release();
    }
    void** Out() { return reinterpret_cast<void**>(&Pointer); }
    Interface* operator->() const { return Pointer; }

    Interface* Pointer = nullptr;
};

/// Makes a new, empty directory the one of the user's data.
class DataDirectory
{
public:
    DataDirectory()
        : Path(std::filesystem::temp_directory_path() /
               ("tamrivo_component_test_" + std::to_string(getpid())))
    {
        std::filesystem::remove_all(Path);
        std::filesystem::create_directories(Path);
        setenv("XDG_DATA_HOME", Path.c_str(), 1);
    }
    DataDirectory(const DataDirectory&) = delete;
    DataDirectory& operator=(const DataDirectory&) = delete;
    ~DataDirectory() { std::filesystem::remove_all(Path); }

    const std::filesystem::path Path;
};

/// What a command prints, its errors included.
inline std::string OutputOf(const std::string& command)
{
    FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
    std::string output;
    for (int byte = fgetc(pipe); byte != EOF; byte = fgetc(pipe))
        output += static_cast<char>(byte);
    pclose(pipe);
    return output;
}

} // namespace Tamrivo
