#pragma once

#include <cstdint>
#include <optional>

namespace Tamrivo
{

// Numbers as ones of a smaller type.

/// The nearest whole number of 32 bits, of two the even one; none for what is too large, or no
/// number.
std::optional<std::int32_t> NearestInteger(double value);

/// The nearest whole number. Raises `ErrorNumber::OutOfRange` when there is none.
std::int32_t ToInteger(double value);

/// The number in 16 bits. Raises `ErrorNumber::OutOfRange`.
std::int16_t ToShortInteger(std::int32_t value);

/// The nearest 32-bit float. Raises `ErrorNumber::OutOfRange` for what is too large.
float ToSingle(double value);

} // namespace Tamrivo
