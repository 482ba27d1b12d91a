#include "host/fit/proposal.h"

#include "core/text.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// The allele that the locus has, moved to where the proposal has it.
AlleleFields Moved(AlleleFields known, const AlleleFields& proposed)
{
    known.AlleleReal1 = proposed.AlleleReal1;
    known.AlleleReal2 = proposed.AlleleReal2;
    known.AlleleReal3 = proposed.AlleleReal3;
    known.AlleleInt1 = proposed.AlleleInt1;
    return known;
}

bool IsApart(const AlleleFields& allele, const LadderFit& fit)
{
    return std::ranges::none_of(fit.Alleles, [&allele](const ProposedAllele& proposed) {
        return HasAlleleName(allele, proposed.Fields.AlleleText1) ||
               (allele.AlleleReal2 < proposed.Fields.AlleleReal3 &&
                proposed.Fields.AlleleReal2 < allele.AlleleReal3);
    });
}

} // namespace

bool HasAlleleName(const AlleleFields& allele, const std::string& name)
{
    return EqualNoCase(Trim(allele.AlleleText1), name);
}

std::vector<AlleleFields> WithProposal(std::span<const AlleleFields* const> known,
                                       const LadderFit& fit)
{
    std::vector<AlleleFields> alleles;
    for (const ProposedAllele& proposed : fit.Alleles)
    {
        const auto same = std::ranges::find_if(known, [&proposed](const AlleleFields* allele) {
            return HasAlleleName(*allele, proposed.Fields.AlleleText1);
        });
        alleles.push_back(same == known.end() ? proposed.Fields : Moved(**same, proposed.Fields));
    }
    for (const AlleleFields* allele : known)
    {
        if (IsApart(*allele, fit))
            alleles.push_back(*allele);
    }
    std::ranges::stable_sort(alleles, {}, &AlleleFields::AlleleReal1);
    return alleles;
}

const ProposedAllele* CallSize(const LadderFit& fit, double size)
{
    const auto called = std::ranges::find_if(fit.Alleles, [size](const ProposedAllele& allele) {
        return allele.Fields.AlleleReal2 <= size && size <= allele.Fields.AlleleReal3;
    });
    return called == fit.Alleles.end() ? nullptr : &*called;
}

} // namespace Tamrivo
