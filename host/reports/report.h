#pragma once

#include "contracts/service_base.h"
#include "host/reports/locus_listing.h"

#include <string>
#include <vector>

namespace Tamrivo
{

class HostApplication;
struct ContextKind;

/// Loci under the keys that a report names them by.
struct Report
{
    std::string Subject;           ///< What they are.
    std::vector<std::string> Keys; ///< One for each locus.
    Loci Items;
    Dyes OfStore; ///< Those that the loci have.

    /// "Locus: 17 loci".
    std::string Heading() const;
};

/// The contexts of a kind, in the service's order. Raises what the store raises.
Report ContextsOf(HostApplication& host, const ContextKind& kind);

/// Of the contexts those under the keys, in the order of the keys. Case and blanks at the end don't
/// count; a key without a context is left out.
Report OnlyKeys(const Report& report, const std::vector<std::string>& keys);

/// The loci under their keys.
Table TableOf(const Report& report, Audience audience);

} // namespace Tamrivo
