#pragma once

#include <cstddef>
#include <string>

namespace Tamrivo
{

/// "1 locus", "20 loci".
std::string CountOfLoci(std::size_t count);
/// "1 allele", "30 alleles".
std::string CountOfAlleles(std::size_t count);

} // namespace Tamrivo
