#pragma once

#include "component/com.h"
#include "contracts/host.h"

#include <span>
#include <string_view>

namespace Tamrivo
{

/// A class that can be created by name.
struct CreatableClass
{
    std::string_view Name;
    CLSID Id;
    /// A new object with one reference. Raises what the class's constructor raises.
    IUnknown* (*Create)(Host& host);
};

/// All of them.
std::span<const CreatableClass> CreatableClasses();

} // namespace Tamrivo
