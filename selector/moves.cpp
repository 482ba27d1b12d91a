#include "core/narrowing.h"
#include "selector/str_locus_tag_selector.h"

namespace Tamrivo
{

void STRLocusTagSelector::MoveHighlightedRows(Side& from)
{
    from.CurrentRow = Helper().MoveHighlightedRows(from.Rows, from.Other.Rows);
    if (from.CurrentRow > 0)
    {
        Helper().HighlightRow(from.Rows, ToInteger(from.CurrentRow));
        from.EditItem.SetEnabled(true);
        cmdEditSTRLocus.SetEnabled(true);
    }
    ShowButtons();
}

void STRLocusTagSelector::MoveRow(Side& from, std::int32_t nRow)
{
    if (!m_bEnabled || nRow < 1)
        return;
    const double dRows = from.Rows.RowCount();
    if (dRows > nRow)
        from.CurrentRow = nRow;
    else if (dRows == nRow)
        from.CurrentRow = nRow - 1;
    Helper().MoveRow(from.Rows, from.Other.Rows, nRow);
    if (from.CurrentRow > 0)
        Helper().HighlightRow(from.Rows, ToInteger(from.CurrentRow));
    ShowButtons();
}

void STRLocusTagSelector::MoveAllRows(Side& from)
{
    Helper().MoveAllRows(from.Rows, from.Other.Rows);
    from.CurrentRow = 0;
    ShowButtons();
}

void STRLocusTagSelector::MoveFromMenu(Side& from)
{
    if (Helper().HighlightedRowCount(from.Rows) >= 1)
        MoveHighlightedRows(from);
    else
        MoveRow(from, ToInteger(from.CurrentRow));
}

} // namespace Tamrivo
