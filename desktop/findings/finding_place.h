#pragma once

namespace Tamrivo
{

struct Finding;
class FormView;

/// Gives the focus to what the finding is about: the field, or the row of the allele. Nothing for a
/// finding about the locus as a whole, or a page that isn't the editor's.
void LeadTo(FormView& page, const Finding& finding);

} // namespace Tamrivo
