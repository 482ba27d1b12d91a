#pragma once

#include <memory>
#include <vector>

namespace Tamrivo
{

class StoredLocus;

/// Sorts the loci by tag, without minding case or trailing blanks; equal ones keep their order.
void SortByTag(std::vector<std::shared_ptr<StoredLocus>>& loci);

} // namespace Tamrivo
