#pragma once

#include "core/error.h"

#include <memory>
#include <utility>

namespace Tamrivo
{

/// A shared object that may not be there yet.
template <class T>
class Reference
{
public:
    Reference() = default;
    template <class U>
    Reference(std::shared_ptr<U> object) : m_object(std::move(object))
    {}

    explicit operator bool() const { return m_object != nullptr; }
    operator const std::shared_ptr<T>&() const { return m_object; }

    /// The object. Raises `ErrorNumber::NoObject` when there is none.
    T& operator*() const
    {
        if (!m_object)
            throw Failure(ErrorNumber::NoObject, "Reference",
                          "What is needed here could not be loaded before; open the page anew");
        return *m_object;
    }
    T* operator->() const { return &**this; }

private:
    std::shared_ptr<T> m_object;
};

} // namespace Tamrivo
