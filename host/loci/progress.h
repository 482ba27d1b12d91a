#pragma once

#include <cstddef>
#include <functional>

namespace Tamrivo
{

/// Thrown through work that the person has cancelled. It is no failure: guards let it pass, and
/// nobody needs to be told.
struct Cancelled
{};

/// Told how many of the loci are done, and how many there are. What it throws ends the work.
using LociProgress = std::function<void(std::size_t done, std::size_t total)>;

} // namespace Tamrivo
