#pragma once

#include <functional>
#include <utility>

namespace Tamrivo
{

/// An event with its one handler, named object, underscore, event. Without a handler raising it
/// does nothing. The handler runs to its end inside the raise, and its failures go to the raiser.
template <class... Arguments>
class Event
{
public:
    using Handler = std::function<void(Arguments...)>;

    Event& operator=(Handler handler)
    {
        m_handler = std::move(handler);
        return *this;
    }

    void operator()(Arguments... arguments) const
    {
        if (m_handler)
            m_handler(std::forward<Arguments>(arguments)...);
    }

private:
    Handler m_handler;
};

} // namespace Tamrivo
