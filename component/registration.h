#pragma once

namespace Tamrivo
{

// Both write the registry file as a whole and raise `std::runtime_error` when that fails, which
// leaves the file as it was.

/// Enters the module's classes, in place of what stood under their names.
void RegisterClasses();

/// Removes the module's classes where they lead to this very module, and the file when nothing else
/// stands in it.
void UnregisterClasses();

} // namespace Tamrivo
