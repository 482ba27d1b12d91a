#pragma once

#include "controls/control.h"
#include "core/reference.h"

#include <memory>

namespace Tamrivo
{

/// A place on the form for a control of the host, which brings its own operations and events.
template <class T>
class HostedControl : public Control
{
public:
    struct Settings
    {
        std::shared_ptr<T> Object;
        bool TabStop = true;
    };

    HostedControl(const Declaration& declaration, const Settings& settings)
        : Control(declaration), m_object(settings.Object), m_tabStop(settings.TabStop)
    {}

    /// The host's control. Raises `ErrorNumber::NoObject` when the host has given none.
    T& Object() const { return *m_object; }
    T* operator->() const { return &*m_object; }

    bool IsTabStop() const override { return m_tabStop; }
    /// The host's control has a disabled state of its own, which the form's logic sets.
    bool AnswersInDisabledForm() const override { return true; }

    Tamrivo::Properties Properties() const override
    {
        auto properties = Control::Properties();
        if constexpr (requires { m_object->Properties(); })
        {
            const auto own = m_object ? m_object->Properties() : Tamrivo::Properties();
            properties.insert(properties.end(), own.begin(), own.end());
        }
        return properties;
    }

private:
    Reference<T> m_object;
    bool m_tabStop;
};

} // namespace Tamrivo
