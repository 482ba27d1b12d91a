#include "desktop/findings/finding_place.h"

#include "desktop/alleles/allele_pane_view.h"
#include "desktop/alleles/page_fields.h"
#include "desktop/forms/form_view.h"
#include "editor/locus_editor_form.h"
#include "host/checks/check_rules.h"

#include <algorithm>

namespace Tamrivo
{

FindingPlace PlaceOf(LocusEditorForm& page, const Finding& finding)
{
    if (finding.Allele.empty())
        return {ControlOf(page, finding.Field)};
    const AlleleRows& rows = User::AllelesOf(page.ctlPaneAlleleList).Rows();
    const auto row = std::ranges::find(rows, finding.Allele,
                                       [](const auto& allele) { return allele->AlleleText1; });
    return {&page.ctlPaneAlleleList,
            row == rows.end() ? 0 : static_cast<std::int32_t>(row - rows.begin()) + 1};
}

void LeadTo(FormView& page, const Finding& finding)
{
    auto* form = dynamic_cast<LocusEditorForm*>(&page.Form());
    const FindingPlace place = form == nullptr ? FindingPlace() : PlaceOf(*form, finding);
    ControlView* const view = place.Where == nullptr ? nullptr : page.ViewOf(*place.Where);
    if (view == nullptr)
        return;
    page.BringToView(*place.Where);
    if (auto* alleles = dynamic_cast<AllelePaneView*>(view))
        alleles->GoTo(place.Allele);
    else
        view->FocusWidget().setFocus(Qt::OtherFocusReason);
}

} // namespace Tamrivo
