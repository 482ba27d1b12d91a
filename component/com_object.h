#pragma once

#include "component/com.h"
#include "component/module.h"

#include <tuple>
#include <type_traits>

namespace Tamrivo
{

/// Identity, interfaces and lifetime of an object of the component object model: born with one
/// reference, gone with the last one. The first interface serves as its `IUnknown`.
template <class... Interfaces>
class ComObject : public Interfaces...
{
public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    IUnknown* Identity()
    {
        return static_cast<std::tuple_element_t<0, std::tuple<Interfaces...>>*>(this);
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppvObject) override
    {
        if (!ppvObject)
            return E_POINTER;
        *ppvObject = Find(riid);
        if (!*ppvObject)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }

    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG references = --m_references;
        if (references == 0)
            delete this;
        return references;
    }

protected:
    ComObject() { ++TheModule().InUse; }
    virtual ~ComObject() { --TheModule().InUse; }

private:
    template <class Interface>
    static const GUID& IdOf()
    {
        if constexpr (std::is_same_v<Interface, IClassFactory>)
            return IID_IClassFactory;
        else
            return Interface::Id;
    }

    void* Find(REFIID riid)
    {
        void* found = riid == IID_IUnknown ? Identity() : nullptr;
        ((riid == IdOf<Interfaces>() ? void(found = static_cast<Interfaces*>(this)) : void()), ...);
        return found;
    }

    std::atomic<ULONG> m_references = 1;
};

} // namespace Tamrivo
