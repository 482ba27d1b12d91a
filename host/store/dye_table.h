#pragma once

#include "host/loci/dyes.h"

#include <string>
#include <vector>

namespace Tamrivo
{

class Database;

/// The dyes of the store.
Dyes ReadDyes(Database& database);

/// How many of the stored loci, current or not, have each of the dyes.
std::vector<std::size_t> CountLociByDye(Database& database, const Dyes& dyes);

/// Stores the dyes instead of those before. Raises `ErrorNumber::InvalidArgument`, and changes
/// nothing, when loci have a dye that is no longer there or, unless `recolor`, would get another
/// colour; the message has their tags.
void WriteDyes(Database& database, const Dyes& dyes, bool recolor);

} // namespace Tamrivo
