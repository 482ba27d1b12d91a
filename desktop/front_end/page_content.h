#pragma once

#include "contracts/allele.h"

#include <string>
#include <vector>

namespace Tamrivo
{

class UserControl;

/// What a person has entered on a page.
struct PageContent
{
    std::vector<std::string> Fields;   ///< Texts and choices, in the order of the form.
    std::vector<AlleleFields> Alleles; ///< Of its allele pane.

    bool operator==(const PageContent&) const = default;
};

PageContent ContentOf(const UserControl& page);

} // namespace Tamrivo
