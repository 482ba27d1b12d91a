#pragma once

#include <string>
#include <vector>

namespace Tamrivo
{

/// A field, or an allele, in which two states differ.
struct ContentDifference
{
    std::string What;
    std::string Before; ///< Empty where there was none.
    std::string After;  ///< Empty where there is none any more.
};

/// What lies between two states of an object, as `HistoryRecord::Content` keeps them: field by
/// field, then allele by allele. Alleles of one name are compared with each other, in their order.
/// Contents that are empty or can't be read have no fields.
std::vector<ContentDifference> ContentDifferences(const std::string& before,
                                                  const std::string& after);

} // namespace Tamrivo
