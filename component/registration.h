#pragma once

namespace Tamrivo
{

// Where classes are found by name: in the registry file, or under Windows in the platform's
// registry, for all users where this one may do that, else for this one alone. Both raise what
// derives from `std::runtime_error` when the writing fails; under Windows a `std::system_error`
// with the platform's code. A failing registration leaves everything as it was.

/// Enters the module's classes, in place of what stood under their names.
void RegisterClasses();

/// Removes the module's classes where they lead to this very module, and what is empty then.
void UnregisterClasses();

} // namespace Tamrivo
