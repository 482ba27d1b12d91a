#include "host/checks/nucleotides.h"

#include "core/numbers.h"

#include <cmath>

namespace Tamrivo
{

namespace
{

std::string Rounded(double value)
{
    constexpr double hundred = 100;
    const double rounded = std::round(value * hundred) / hundred;
    return DoubleText(std::isfinite(rounded) ? rounded : value);
}

} // namespace

std::string NtText(double value)
{
    return Rounded(value) + " nt";
}

std::string NtText(double from, double to)
{
    return Rounded(from) + " to " + NtText(to);
}

std::string BinText(const AlleleFields& allele)
{
    return "bin " + NtText(allele.AlleleReal2, allele.AlleleReal3);
}

} // namespace Tamrivo
