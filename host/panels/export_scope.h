#pragma once

#include "contracts/business_object.h"

#include <memory>
#include <string>
#include <vector>

namespace Tamrivo
{

class Store;

/// Which of the store's loci are exported: those of the tags, of the analysis parameter or of the
/// panel, whichever is named, else all current ones.
struct ExportScope
{
    std::vector<std::string> Tags = {};
    std::string Parameter = {}; ///< Its loci come in its order.
    std::string Panel = {};     ///< The primer set, case aside.

    bool IsAll() const { return Tags.empty() && Parameter.empty() && Panel.empty(); }
};

/// The loci of the scope. Raises `StoreError::NotFound` for a name that nothing has, and failures
/// of the store.
std::vector<std::shared_ptr<BusinessObject>> LociInScope(Store& store, const ExportScope& scope);

} // namespace Tamrivo
