#pragma once

#include "component/com_object.h"
#include "component/component.h"

namespace Tamrivo
{

/// `IObjectAccess` to an object that stands elsewhere.
template <class T>
class AccessTo : public IObjectAccess<T>
{
public:
    HRESULT STDMETHODCALLTYPE Get(T** object) override
    {
        if (!object)
            return E_POINTER;
        *object = m_object;
        return S_OK;
    }

protected:
    T* m_object = nullptr;
};

/// A `T` as an object that a program creates by name and reaches as each of `Offered`, to which a
/// `T` converts.
template <class T, class... Offered>
class ComponentObject final : public ComObject<AccessTo<Offered>...>
{
public:
    explicit ComponentObject(Host& host) : m_object(host)
    {
        ((AccessTo<Offered>::m_object = &static_cast<Offered&>(m_object)), ...);
    }

private:
    T m_object;
};

} // namespace Tamrivo
