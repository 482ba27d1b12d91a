#pragma once

#include "component/class_table.h"

namespace Tamrivo
{

/// A new object of the class for a client that has no C++ host, with one reference. Texts are in
/// the notation of the person from the first one on. Raises what its making raises.
IUnknown* CreateForAutomation(const CreatableClass& created);

} // namespace Tamrivo
