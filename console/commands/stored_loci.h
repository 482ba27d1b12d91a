#pragma once

#include "contracts/locus.h"

#include <memory>
#include <string>

namespace Tamrivo
{

class Store;

/// The stored locus with the tag. Raises `StoreError::NotFound` with a message that names the tags
/// that come nearest.
std::shared_ptr<Locus> RequireLocus(Store& store, const std::string& tag);

/// "1 locus", "20 loci".
std::string CountOfLoci(std::size_t count);
/// "1 allele", "30 alleles".
std::string CountOfAlleles(std::size_t count);

} // namespace Tamrivo
