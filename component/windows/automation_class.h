#pragma once

#include "component/class_table.h"

namespace Tamrivo
{

/// A new object of the class for a client that has no C++ host, with one reference. Raises what its
/// making raises.
IUnknown* CreateForAutomation(const CreatableClass& created);

} // namespace Tamrivo
