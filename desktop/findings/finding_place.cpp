#include "desktop/findings/finding_place.h"

#include "desktop/alleles/allele_pane_view.h"
#include "desktop/forms/form_view.h"
#include "editor/locus_editor_form.h"
#include "host/checks/check_rules.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// Where the page has a field.
struct FieldPlace
{
    std::string_view Field;
    const Control& (*ControlOf)(const LocusEditorForm&);
};

template <auto Member>
const Control& ControlAt(const LocusEditorForm& form)
{
    return form.*Member;
}

using Form = LocusEditorForm;

constexpr FieldPlace fieldPlaces[] = {
    {"DyeIndex", ControlAt<&Form::cmbDye>},
    {"FragStart", ControlAt<&Form::txtFragStart>},
    {"FragEnd", ControlAt<&Form::txtFragEnd>},
    {"RepeatLength", ControlAt<&Form::txtRepeat>},
    {"RepeatUnitSequence", ControlAt<&Form::txtRepeatUnitSequence>},
    {"FwdPrimer", ControlAt<&Form::txtFwd>},
    {"RevPrimer", ControlAt<&Form::txtRev>},
};

const Control* PlaceOf(const LocusEditorForm& form, const Finding& finding)
{
    if (!finding.Allele.empty())
        return &form.ctlPaneAlleleList;
    const auto place = std::ranges::find(fieldPlaces, finding.Field, &FieldPlace::Field);
    return place == std::end(fieldPlaces) ? nullptr : &place->ControlOf(form);
}

} // namespace

void LeadTo(FormView& page, const Finding& finding)
{
    const auto* form = dynamic_cast<const LocusEditorForm*>(&page.Form());
    const Control* const control = form == nullptr ? nullptr : PlaceOf(*form, finding);
    ControlView* const view = control == nullptr ? nullptr : page.ViewOf(*control);
    if (view == nullptr)
        return;
    page.BringToView(*control);
    view->FocusWidget().setFocus(Qt::OtherFocusReason);
    if (auto* alleles = dynamic_cast<AllelePaneView*>(view))
        alleles->ChooseAllele(finding.Allele);
}

} // namespace Tamrivo
