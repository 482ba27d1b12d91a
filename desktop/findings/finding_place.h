#pragma once

#include <cstdint>

namespace Tamrivo
{

struct Finding;
class Control;
class FormView;
class LocusEditorForm;

/// Where the editor's page has what a finding is about.
struct FindingPlace
{
    const Control* Where = nullptr; ///< A field or the allele pane; null: the locus as a whole.
    std::int32_t Allele = 0;        ///< Row of the pane, counted from 1.
};
/// Of several alleles with the finding's name it is the first.
FindingPlace PlaceOf(LocusEditorForm& page, const Finding& finding);

/// Gives the focus to what the finding is about: the field, or the row of the allele. Nothing for a
/// finding about the locus as a whole, or a page that isn't the editor's.
void LeadTo(FormView& page, const Finding& finding);

} // namespace Tamrivo
