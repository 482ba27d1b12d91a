#include "component/class_object.h"

#ifdef _WIN32
#include "component/windows/automation_class.h"
#endif
#include "core/locale.h"

#include <new>

namespace Tamrivo
{

namespace
{

#ifdef _WIN32
/// What a client gets that hasn't handed over a C++ host, or asks for automation.
IUnknown* CreateFor(const CreatableClass& created, Host* host, REFIID riid)
{
    return host && riid != IID_IDispatch ? created.Create(*host) : CreateForAutomation(created);
}
constexpr bool needsHost = false;
#else
IUnknown* CreateFor(const CreatableClass& created, Host* host, REFIID)
{
    return created.Create(*host);
}
constexpr bool needsHost = true;
#endif

/// The result code of the exception being handled, which no caller of an interface may see.
HRESULT Failed()
{
    try
    {
        throw;
    }
    catch (const std::bad_alloc&)
    {
        return E_OUTOFMEMORY;
    }
    catch (const std::exception&)
    {
        TheModule().LastFailure = CurrentError();
        return E_FAIL;
    }
    catch (...)
    {
        // What carries no error record is the host's word that the person has cancelled.
        return E_ABORT;
    }
}

} // namespace

HRESULT STDMETHODCALLTYPE ClassObject::CreateInstance(IUnknown* pUnkOuter, REFIID riid,
                                                      void** ppvObject)
{
    if (!ppvObject)
        return E_POINTER;
    *ppvObject = nullptr;
    if (pUnkOuter)
        return CLASS_E_NOAGGREGATION;
    Host* const host = TheModule().CurrentHost;
    if (needsHost && !host)
        return E_NoHost;
    try
    {
        IUnknown* const object = CreateFor(m_created, host, riid);
        const HRESULT result = object->QueryInterface(riid, ppvObject);
        object->Release();
        return result;
    }
    catch (...)
    {
        return Failed();
    }
}

HRESULT STDMETHODCALLTYPE ClassObject::LockServer(BOOL fLock)
{
    TheModule().InUse += fLock ? 1 : -1;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE ClassObject::SetHost(Host* host)
{
    TheModule().CurrentHost = host;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE ClassObject::SetTextLocale(const std::locale& locale)
{
    Tamrivo::SetTextLocale(locale);
    return S_OK;
}

HRESULT STDMETHODCALLTYPE ClassObject::GetLastFailure(ErrorRecord* failure)
{
    if (!failure)
        return E_POINTER;
    const auto& last = TheModule().LastFailure;
    *failure = last.value_or(ErrorRecord());
    return last ? S_OK : S_FALSE;
}

} // namespace Tamrivo
