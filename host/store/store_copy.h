#pragma once

#include <string>

namespace Tamrivo
{

class Store;

/// Carries everything from one store to another on any back end: loci, analysis parameters,
/// projects, dyes, settings and the history with its seals, all with their numbers. It is what
/// `from` holds at one moment. The memory it takes doesn't grow with the store. Raises
/// `ErrorNumber::InvalidArgument`, and leaves `to` as it was, unless that one is new and empty, and
/// another one than `from`.
void CopyStore(Store& from, Store& to);

/// What differs between two stores: the name of the first table whose rows aren't the same; empty
/// when all are.
std::string FirstDifference(Store& one, Store& other);

} // namespace Tamrivo
