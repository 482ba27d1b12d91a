#pragma once

#include "contracts/utility.h"

#include <cstdint>
#include <string>

namespace Tamrivo
{

// What `Utility` answers without asking anybody.

/// `Utility::KeyExists`.
bool HasKey(const Keyed& container, const std::string& key);

/// `Utility::IsIntegerInRange`.
bool HoldsIntegerInRange(const TextField& field, std::int32_t low, std::int32_t high);

} // namespace Tamrivo
