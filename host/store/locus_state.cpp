#include "host/store/locus_state.h"

#include "host/store/allele_row.h"
#include "host/store/stored_locus.h"

#include <algorithm>
#include <type_traits>

namespace Tamrivo
{

namespace
{

void KeepPrecision(double& value, double stored)
{
    if (value == static_cast<double>(static_cast<float>(stored)))
        value = stored;
}

void KeepPrecision(AlleleFields& allele, const AlleleFields& stored)
{
    std::vector<double> storedNumbers;
    VisitAlleleFields(stored, [&](std::string_view, const auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, double>)
            storedNumbers.push_back(value);
    });
    auto next = storedNumbers.begin();
    VisitAlleleFields(allele, [&](std::string_view, auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, double>)
            KeepPrecision(value, *next++);
    });
}

} // namespace

LocusState StateOf(const StoredLocus& locus)
{
    LocusState state{locus.LocusTag(), locus.IsCurrent(), locus, {}};
    if (const ObjectList* alleles = locus.LoadedAlleles())
    {
        state.Alleles.reserve(alleles->Members().size());
        for (const auto& member : alleles->Members())
            state.Alleles.push_back(*As<Allele>(member));
    }
    return state;
}

void KeepStoredPrecision(LocusState& state, const LocusState& stored)
{
    for (const LocusField& field : LocusFieldTable)
    {
        if (const auto* number = std::get_if<double LocusFields::*>(&field.Member))
            KeepPrecision(state.Fields.*(*number), stored.Fields.*(*number));
    }
    const std::size_t count = std::min(state.Alleles.size(), stored.Alleles.size());
    for (std::size_t position = 0; position < count; ++position)
    {
        if (state.Alleles[position] != stored.Alleles[position])
            KeepPrecision(state.Alleles[position], stored.Alleles[position]);
    }
}

} // namespace Tamrivo
