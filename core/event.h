#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace Tamrivo
{

template <class... Arguments>
class Event;

/// A place in a ring of them. It leaves the ring when it is destroyed.
class EventLink
{
public:
    explicit EventLink(bool isListener) : m_isListener(isListener) {}
    EventLink(const EventLink&) = delete;
    EventLink& operator=(const EventLink&) = delete;
    virtual ~EventLink() { Leave(); }

private:
    template <class... Arguments>
    friend class Event;

    void Leave()
    {
        m_previous->m_next = m_next;
        m_next->m_previous = m_previous;
        m_previous = m_next = this;
    }

    void StandBefore(EventLink& other)
    {
        Leave();
        m_previous = other.m_previous;
        m_next = &other;
        m_previous->m_next = this;
        other.m_previous = this;
    }

    EventLink* m_previous = this;
    EventLink* m_next = this;
    bool m_isListener;
};

/// A handler that listens to an event until this object goes. Event and connection may go in either
/// order.
using Connection = std::unique_ptr<EventLink>;

/// An event, named object, underscore, event, with any number of handlers. Raising it calls them in
/// the order in which they were connected; each runs to its end inside the raise, and its failures
/// go to the raiser. A handler may take away any connection but its own, connect others, and
/// destroy the event.
///
/// All memory of a connection belongs to the connecting side, so that a module that has dropped its
/// connections can be unloaded while the event lives on.
template <class... Arguments>
class Event
{
public:
    using Handler = std::function<void(Arguments...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    ~Event()
    {
        while (m_ring.m_next != &m_ring)
            m_ring.m_next->Leave();
    }

    [[nodiscard]] Connection Connect(Handler handler)
    {
        auto listener = std::make_unique<Listener>(std::move(handler));
        listener->StandBefore(m_ring);
        return listener;
    }

    void operator()(Arguments... arguments)
    {
        // A bookmark in the ring: what leaves or joins it meanwhile doesn't lead the raise astray.
        EventLink bookmark(false);
        bookmark.StandBefore(*m_ring.m_next);
        while (bookmark.m_next != &m_ring && bookmark.m_next != &bookmark)
        {
            EventLink& next = *bookmark.m_next;
            bookmark.StandBefore(*next.m_next);
            if (next.m_isListener)
                static_cast<Listener&>(next).Handle(arguments...);
        }
    }

private:
    struct Listener final : EventLink
    {
        explicit Listener(Handler handler) : EventLink(true), Handle(std::move(handler)) {}
        Handler Handle;
    };

    EventLink m_ring{false};
};

/// The connections of one listener, which end with it.
class Connections
{
public:
    template <class Event, class Handler>
    void On(Event& event, Handler&& handler)
    {
        m_connections.push_back(event.Connect(std::forward<Handler>(handler)));
    }

    void End() { m_connections.clear(); }

private:
    std::vector<Connection> m_connections;
};

} // namespace Tamrivo
