#pragma once

#include <string>

namespace Tamrivo
{

/// Raises `ErrorNumber::InvalidArgument` for what a locus can't have as its tag: none but blanks,
/// or more than `Limit::LocusTag` characters.
void RequireLocusTag(const std::string& tag);

} // namespace Tamrivo
