#pragma once

#include <cstdint>

namespace Tamrivo
{

/// The number by which a debugger finds the running application.
std::int32_t ProcessNumber();

} // namespace Tamrivo
