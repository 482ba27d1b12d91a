#include "core/narrowing.h"

#include "core/error.h"
#include "core/numbers.h"

#include <cmath>
#include <limits>
#include <utility>

namespace Tamrivo
{

namespace
{

[[noreturn]] void RaiseOutOfRange(const char* conversion, const std::string& number,
                                  const char* type)
{
    throw Failure(ErrorNumber::OutOfRange, conversion, number + " is too large for " + type);
}

} // namespace

std::optional<std::int32_t> NearestInteger(double value)
{
    double rounded = std::floor(value);
    const double fraction = value - rounded;
    if (fraction > 0.5 || (fraction == 0.5 && std::fmod(rounded, 2) != 0))
        rounded += 1;

    using Limits = std::numeric_limits<std::int32_t>;
    if (rounded >= Limits::min() && rounded <= Limits::max())
        return static_cast<std::int32_t>(rounded);
    return std::nullopt;
}

std::int32_t ToInteger(double value)
{
    if (const auto nearest = NearestInteger(value))
        return *nearest;
    RaiseOutOfRange("ToInteger", DoubleText(value), "a whole number of 32 bits");
}

std::int16_t ToShortInteger(std::int32_t value)
{
    if (!std::in_range<std::int16_t>(value))
        RaiseOutOfRange("ToShortInteger", IntegerText(value), "a whole number of 16 bits");
    return static_cast<std::int16_t>(value);
}

float ToSingle(double value)
{
    if (std::abs(value) > std::numeric_limits<float>::max())
        RaiseOutOfRange("ToSingle", DoubleText(value), "a float of 32 bits");
    return static_cast<float>(value);
}

} // namespace Tamrivo
