#pragma once

#include "host/store/stored_locus.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace Tamrivo
{

class Store;

// Who goes through many loci would ask the store for the alleles of each; these read them for
// hundreds of loci with one query.

/// How many loci it is best to load at a time.
inline constexpr std::size_t LociAtOnce = 500;

/// Those of the loci that the store has and whose alleles aren't loaded.
template <class Object>
std::vector<StoredLocus*> LociWithoutAlleles(std::span<const std::shared_ptr<Object>> loci)
{
    std::vector<StoredLocus*> without;
    for (const auto& object : loci)
    {
        auto* locus = dynamic_cast<StoredLocus*>(object.get());
        if (locus && locus->LocusID() > 0 && !locus->LoadedAlleles())
            without.push_back(locus);
    }
    return without;
}

/// Loads the alleles of the loci, which are of one store. Raises `StoreError::Conflict` when one of
/// them is no longer as it was read.
void LoadAlleles(const std::vector<StoredLocus*>& loci);

std::size_t CountCurrentLoci(Store& store);

/// Calls the handler with each current locus of a store, whose alleles are loaded, in the order of
/// their numbers, and with its place. The memory doesn't grow with the store.
void ForEachCurrentLocus(Store& store, const std::function<void(Locus&, std::size_t)>& handler);

/// Calls the handler with each locus, whose alleles are loaded then, and with its place. Those that
/// were not loaded before are forgotten afterwards, so that the memory doesn't grow with the list.
void ForEachWithAlleles(std::span<const std::shared_ptr<BusinessObject>> loci,
                        const std::function<void(Locus&, std::size_t)>& handler);

} // namespace Tamrivo
