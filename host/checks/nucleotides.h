#pragma once

#include "contracts/allele.h"

#include <string>

namespace Tamrivo
{

// Lengths as the findings tell them, rounded to a hundredth.

/// Differences below this many nt come from rounding.
inline constexpr double RoundingError = 1e-6;

/// "12.35 nt"
std::string NtText(double value);
/// "12.35 to 13.35 nt"
std::string NtText(double from, double to);
/// "bin 93.55 to 94.55 nt"
std::string BinText(const AlleleFields& allele);

} // namespace Tamrivo
