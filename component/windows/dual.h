#pragma once

#include "automation/classes.h"
#include "component/com.h"
#include "component/windows/face.h"

namespace Tamrivo
{

/// The table of functions of a class's dual interface: those of `IDispatch`, then one for each
/// member in the order of the class's own table, as the type library says it.
const Slot* DualTable(const Automation::Class& type);

} // namespace Tamrivo
