#include "editor/locus_editor_form.h"

namespace Tamrivo
{

LocusEditorForm::LocusEditorForm(Host& host)
    : UserControl("LocusEditorPage", 11040, 8010),
      ctlPaneAlleleList({"ctlPaneAlleleList", *this, 40, {0, 5400, 10935, 2535}},
                        {.Object = host.NewPaneAlleleList(), .TabStop = false})
{}

} // namespace Tamrivo
