#include "component/class_object.h"
#include "component/registration.h"

#include <algorithm>
#include <iostream>
#include <new>

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
    catch (const std::exception& failure)
    {
        // There is no host to tell, and the result code alone would leave a person guessing.
        std::cerr << "Tamrivo: " << failure.what() << '\n';
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
