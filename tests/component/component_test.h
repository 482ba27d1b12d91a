#pragma once

#include "component/guid_text.h"
#include "component/registry_file.h"
#include "examples/embed/memory_grid.h"
#include "tests/component/module_under_test.h"
#include "tests/fakes/fake_host.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Tamrivo
{

/// A host of fakes with the grids of a program that links nothing.
class EmbeddingHost : public Fakes::FakeHost
{
public:
    std::shared_ptr<ServiceBase> NewServiceBase() override
    {
        Objects.Before("NewServiceBase");
        return std::make_shared<ServiceBase>();
    }
    GridHelper& SharedGridHelper() override { return m_gridHelper; }
    std::shared_ptr<Gridocx> NewGrid() override { return std::make_shared<Embed::MemoryGrid>(); }

private:
    Embed::MemoryGridHelper m_gridHelper;
};

/// The module, registered, with a host for what it creates.
class ComponentTest : public testing::Test
{
protected:
    ComponentTest() { EXPECT_EQ(Module.Call("DllRegisterServer"), S_OK); }
    ~ComponentTest() override { Unload(); }

    void Unload()
    {
        if (!Module.IsLoaded())
            return;
        EXPECT_EQ(Module.Call("DllCanUnloadNow"), S_OK) << "something was never released";
        Module.Unload();
        std::stringstream mapped;
        mapped << std::ifstream("/proc/self/maps").rdbuf();
        EXPECT_EQ(mapped.str().find(TAMRIVO_MODULE), std::string::npos) << "it stays mapped";
    }

    void GetFactory(const char* name, const IID& iid, void** object)
    {
        const GUID classId = *GuidFromText(Registry::Find(name)->ClassId);
        ASSERT_EQ(Module.GetClassObject(classId, iid, object), S_OK);
    }
    HRESULT CreateFor(Tamrivo::Host& host, const char* name, const IID& iid, void** object)
    {
        Held<IHostSite> site;
        Held<IClassFactory> factory;
        GetFactory(name, IHostSite::Id, site.Out());
        site->SetHost(&host);
        EXPECT_EQ(site->QueryInterface(IID_IClassFactory, factory.Out()), S_OK);
        const HRESULT result = factory->CreateInstance(nullptr, iid, object);
        site->SetHost(nullptr);
        return result;
    }
    void Create(const char* name, const IID& iid, void** object)
    {
        ASSERT_EQ(CreateFor(Host, name, iid, object), S_OK);
    }

    DataDirectory Data;
    EmbeddingHost Host;
    LoadedModule Module;
};

/// What a created object offers, held as long as this.
template <class T>
class Access
{
public:
    explicit Access(IUnknown& created)
    {
        EXPECT_EQ(created.QueryInterface(IObjectAccess<T>::Id, m_access.Out()), S_OK);
        EXPECT_EQ(m_access->Get(&m_object), S_OK);
    }
    T* operator->() const { return m_object; }

private:
    Held<IObjectAccess<T>> m_access;
    T* m_object = nullptr;
};

} // namespace Tamrivo
