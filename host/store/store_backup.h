#pragma once

#include <string>

namespace Tamrivo
{

class Store;

/// Writes the store, history included, into an SQLite file of its own, while others use it: what it
/// holds at one moment. The file appears whole or not at all. Raises `ErrorNumber::InvalidArgument`
/// for a file that is there, unless it may be overwritten, and for the store's own.
void BackUpStore(Store& from, const std::string& file, bool mayOverwrite);

} // namespace Tamrivo
