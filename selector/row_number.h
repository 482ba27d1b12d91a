#pragma once

#include <cstdint>

namespace Tamrivo
{

/// A grid's row number, always whole, as an integer.
inline std::int32_t RowNumber(double dRow)
{
    return static_cast<std::int32_t>(dRow);
}

} // namespace Tamrivo
