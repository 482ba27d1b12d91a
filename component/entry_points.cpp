#include "component/class_object.h"
#include "component/registration.h"

#include <algorithm>
#include <new>
#include <system_error>

using namespace Tamrivo;

namespace
{

template <class Action>
HRESULT ResultOf(Action action)
{
    try
    {
        action();
        return S_OK;
    }
#ifdef _WIN32
    catch (const std::system_error& refused)
    {
        TheModule().LastFailure = CurrentError();
        return HRESULT_FROM_WIN32(static_cast<DWORD>(refused.code().value()));
    }
#endif
    catch (const std::exception&)
    {
        TheModule().LastFailure = CurrentError();
        return SELFREG_E_CLASS;
    }
}

} // namespace

STDAPI DllRegisterServer()
{
    return ResultOf(RegisterClasses);
}

STDAPI DllUnregisterServer()
{
    return ResultOf(UnregisterClasses);
}

STDAPI DllGetClassObject(REFCLSID rclsid, REFIID riid, void** ppv)
{
    if (!ppv)
        return E_POINTER;
    *ppv = nullptr;
    const auto classes = CreatableClasses();
    const auto found = std::ranges::find(classes, rclsid, &CreatableClass::Id);
    if (found == classes.end())
        return CLASS_E_CLASSNOTAVAILABLE;
    auto* const classObject = new (std::nothrow) ClassObject(*found);
    if (!classObject)
        return E_OUTOFMEMORY;
    const HRESULT result = classObject->QueryInterface(riid, ppv);
    classObject->Release();
    return result;
}

STDAPI DllCanUnloadNow()
{
    return TheModule().InUse == 0 ? S_OK : S_FALSE;
}
