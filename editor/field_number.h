#pragma once

#include "controls/text_field.h"

#include <cstdint>

namespace Tamrivo
{

/// The field's text as a whole number. Raises as `ToInteger`, the description beginning with the
/// field's name.
std::int32_t IntegerIn(const TextField& field);

} // namespace Tamrivo
