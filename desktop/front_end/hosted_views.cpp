#include "desktop/front_end/hosted_views.h"

#include "desktop/alleles/allele_pane_view.h"
#include "desktop/grids/grid_view.h"

namespace Tamrivo
{

ControlView* NewHostedView(Control& control, QWidget& parent, const Actions& actions)
{
    if (auto* pane = dynamic_cast<User::AllelePaneControl*>(&control))
        return new AllelePaneView(*pane, parent, actions);
    if (auto* grid = dynamic_cast<User::GridControl*>(&control))
        return new GridView(*grid, parent, actions);
    return nullptr;
}

} // namespace Tamrivo
