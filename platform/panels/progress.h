#pragma once

#include <cstddef>
#include <functional>

namespace Tamrivo
{

/// Told how many of the loci are done, and how many there are. What it throws ends the work.
using LociProgress = std::function<void(std::size_t done, std::size_t total)>;

} // namespace Tamrivo
