#pragma once

#include "contracts/allele.h"

#include <string>
#include <vector>

namespace Tamrivo
{

class Control;
class UserControl;

/// Texts and choices of a page's fields, in the order of the form.
using PageFields = std::vector<std::string>;

/// What a person has entered on a page.
struct PageContent
{
    PageFields Fields;
    std::vector<AlleleFields> Alleles; ///< Of its allele pane.

    bool operator==(const PageContent&) const = default;
};

PageFields FieldsOf(const UserControl& page);
PageContent ContentOf(const UserControl& page);

/// Writes into the fields what they held at another time; their handlers answer as ever. Gives the
/// first field that was changed, null for none.
Control* Restore(const UserControl& page, const PageFields& fields);

} // namespace Tamrivo
