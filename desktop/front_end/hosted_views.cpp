#include "desktop/front_end/hosted_views.h"

#include "desktop/alleles/allele_pane_view.h"
#include "desktop/grids/grid_view.h"
#include "editor/locus_editor_form.h"

namespace Tamrivo
{

HostedViewFactory HostedViews(const Dyes& dyes)
{
    return [dyes](Control& control, QWidget& parent, const Actions& actions) -> ControlView* {
        auto* editor = dynamic_cast<LocusEditorForm*>(&control.Form());
        if (editor != nullptr && &control == &editor->ctlPaneAlleleList)
            return new AllelePaneView(*editor, dyes, parent, actions);
        if (auto* grid = dynamic_cast<User::GridControl*>(&control))
            return new GridView(*grid, parent, actions);
        return nullptr;
    };
}

} // namespace Tamrivo
