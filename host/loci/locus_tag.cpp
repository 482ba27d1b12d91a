#include "host/loci/locus_tag.h"

#include "contracts/locus_limits.h"
#include "core/error.h"
#include "core/text.h"

namespace Tamrivo
{

void RequireLocusTag(const std::string& tag)
{
    if (Trim(tag).empty())
        throw Failure(ErrorNumber::InvalidArgument, "Store", "A locus needs a tag");
    if (const std::size_t length = CharacterCount(tag); length > std::size_t{Limit::LocusTag})
        throw Failure(ErrorNumber::InvalidArgument, "Store",
                      "A tag has at most " + std::to_string(Limit::LocusTag) +
                          " characters, and this one has " + std::to_string(length) +
                          ". Give a shorter one; nothing was stored");
}

} // namespace Tamrivo
