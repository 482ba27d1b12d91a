#pragma once

#include "host/grid/grid_model.h"
#include "host/grid/grid_user.h"
#include "selector/str_locus_tag_selector.h"

namespace Tamrivo
{

/// The tags in a grid, in the order of its rows.
inline std::vector<std::string> TagsOf(const User::GridControl& grid)
{
    std::vector<std::string> tags;
    for (double row = 1; row <= grid->RowCount(); ++row)
        tags.push_back(grid->GetTextRowCol(row, 1));
    return tags;
}

inline std::vector<std::int32_t> HighlightOf(const User::GridControl& grid)
{
    return ModelOf(grid.Object()).HighlightedRows();
}

/// The buttons that are enabled, in tab order.
inline std::string EnabledButtons(const STRLocusTagSelector& selector)
{
    std::string buttons;
    for (const Control* control : selector.InTabOrder())
    {
        if (dynamic_cast<const CommandButton*>(control) != nullptr && control->Enabled())
            buttons += control->Name().substr(3) + " ";
    }
    return buttons;
}

} // namespace Tamrivo
