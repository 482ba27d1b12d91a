#include "host/alleles/pane_user.h"

#include "controls/user.h"

namespace Tamrivo::User
{

namespace
{

AllelePane& Reached(const AllelePaneControl& pane)
{
    RequireReach(pane);
    return AllelesOf(pane);
}

} // namespace

AllelePane& AllelesOf(const AllelePaneControl& pane)
{
    return dynamic_cast<AllelePane&>(pane.Object());
}

std::int32_t AddAllele(const AllelePaneControl& pane, std::optional<std::int32_t> after)
{
    return Reached(pane).AddRow(after);
}

std::int32_t AddAlleleOfSize(const AllelePaneControl& pane, double size)
{
    return Reached(pane).AddRowOfSize(size);
}

void RemoveAllele(const AllelePaneControl& pane, std::int32_t row)
{
    Reached(pane).RemoveRow(row);
}

void EditAllele(const AllelePaneControl& pane, std::int32_t row, const AlleleColumn& column,
                std::string_view text)
{
    Reached(pane).EditCell(row, column, text);
}

void LeaveAllele(const AllelePaneControl& pane)
{
    AllelesOf(pane).LeaveRow();
}

void RemoveAlleles(const AllelePaneControl& pane, const std::vector<std::int32_t>& rows)
{
    Reached(pane).RemoveRows(rows);
}

void PasteAlleles(const AllelePaneControl& pane, std::int32_t row, std::size_t column,
                  const std::vector<std::vector<std::string>>& cells)
{
    Reached(pane).PasteCells(row, column, cells);
}

void ReplaceAlleles(const AllelePaneControl& pane, const std::vector<AlleleFields>& alleles)
{
    Reached(pane).ReplaceRows(alleles);
}

void UndoAlleles(const AllelePaneControl& pane)
{
    Reached(pane).Undo();
}

void RedoAlleles(const AllelePaneControl& pane)
{
    Reached(pane).Redo();
}

} // namespace Tamrivo::User
