#pragma once

#include "core/event.h"

#include <cstdint>

namespace Tamrivo
{

/// Shapes of the mouse pointer.
namespace Pointer
{
inline constexpr std::int32_t Default = 0;
inline constexpr std::int32_t Hourglass = 11;
} // namespace Pointer

/// The screen that the forms stand on.
class Screen
{
public:
    std::int32_t MousePointer() const { return m_mousePointer; }
    void SetMousePointer(std::int32_t pointer)
    {
        m_mousePointer = pointer;
        MousePointerChanged();
    }

    /// For the front end.
    Event<> MousePointerChanged;

private:
    std::int32_t m_mousePointer = Pointer::Default;
};

} // namespace Tamrivo
