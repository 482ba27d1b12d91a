#include "desktop/lanes/lane_details.h"

#include "contracts/allele.h"
#include "contracts/locus.h"

namespace Tamrivo
{

std::vector<LaneAllele> LaneAllelesOf(Locus* locus)
{
    std::vector<LaneAllele> alleles;
    if (locus == nullptr)
        return alleles;
    for (const auto& member : locus->Alleles().Members())
    {
        const auto allele = As<Allele>(member);
        alleles.push_back({allele->AlleleText1, allele->AlleleReal1});
    }
    return alleles;
}

std::string NamesOf(const std::vector<LaneAllele>& alleles)
{
    constexpr std::size_t most = 40;
    std::string names;
    for (std::size_t at = 0; at < std::min(alleles.size(), most); ++at)
        names += (at == 0 ? "" : ", ") + alleles[at].Name;
    if (alleles.size() > most)
        names += " and " + std::to_string(alleles.size() - most) + " more";
    return names;
}

} // namespace Tamrivo
