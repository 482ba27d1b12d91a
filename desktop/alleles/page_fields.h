#pragma once

#include "contracts/locus_fields.h"

#include <string_view>

namespace Tamrivo
{

class Control;
class LocusEditorForm;

/// The fields of a locus as its page has them by now, which the locus itself gets when the page is
/// saved. What the page doesn't show, or what can't be read as a number yet, stays as `locus` has
/// it. Only fields that say something of the alleles, or that a check looks at, are read.
LocusFields FieldsOn(LocusEditorForm& page, const LocusFields& locus);

/// Where the page has one of these fields, by its name in `LocusFieldTable`; null for any other.
const Control* ControlOf(LocusEditorForm& page, std::string_view field);

} // namespace Tamrivo
