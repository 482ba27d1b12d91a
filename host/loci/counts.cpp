#include "host/loci/counts.h"

namespace Tamrivo
{

namespace
{

std::string Counted(std::size_t count, const char* one, const char* several)
{
    return std::to_string(count) + " " + (count == 1 ? one : several);
}

} // namespace

std::string CountOfLoci(std::size_t count)
{
    return Counted(count, "locus", "loci");
}

std::string CountOfAlleles(std::size_t count)
{
    return Counted(count, "allele", "alleles");
}

} // namespace Tamrivo
