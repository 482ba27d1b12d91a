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

} // namespace Tamrivo
