#pragma once

#include <string>
#include <vector>

namespace Tamrivo
{

class Locus;

/// An allele as the picture of the lanes shows it.
struct LaneAllele
{
    std::string Name;
    double Size; ///< nt
};

/// What the picture shows of a locus where there is room.
struct LaneDetails
{
    std::vector<LaneAllele> Alleles;
    std::vector<double> Observed; ///< Sizes that an instrument has shown, nt.
};

/// None for null, which is a locus that is gone.
std::vector<LaneAllele> LaneAllelesOf(Locus* locus);

/// "8, 9, 9.3, ..."; past a number that nobody reads only the count.
std::string NamesOf(const std::vector<LaneAllele>& alleles);

} // namespace Tamrivo
