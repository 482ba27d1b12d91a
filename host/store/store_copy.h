#pragma once

#include <string>

namespace Tamrivo
{

class Store;

/// Carries everything from one store to another on any back end: loci, analysis parameters,
/// projects, dyes, settings and the history with its seals, all with their numbers. It is what
/// `from` holds at one moment. The memory it takes doesn't grow with the store. Raises
/// `ErrorNumber::InvalidArgument`, and leaves `to` as it was, unless that one is new and empty.
void CopyStore(Store& from, Store& to);

/// Writes the store into an SQLite file of its own, as `CopyStore` does. The file appears whole or
/// not at all. Raises `ErrorNumber::InvalidArgument` for a file that is there, unless it may be
/// overwritten, and for the store's own.
void BackUpStore(Store& from, const std::string& file, bool mayOverwrite);

/// What differs between two stores: the name of the first table whose rows aren't the same; empty
/// when all are.
std::string FirstDifference(Store& one, Store& other);

} // namespace Tamrivo
