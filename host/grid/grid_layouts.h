#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Tamrivo
{

/// What a column's cells hold, which decides how they are sorted.
enum class ColumnKind
{
    Tags,  ///< Text; numbers inside it count by their value.
    Dates, ///< What `DateText` writes.
};

struct GridColumn
{
    std::string Header;
    ColumnKind Kind = ColumnKind::Tags;

    bool operator==(const GridColumn&) const = default;
};

/// The columns of the layout with a number (`Grid::GridID`). Raises `ErrorNumber::InvalidArgument`
/// when there is none.
const std::vector<GridColumn>& ColumnsOfLayout(std::int32_t gridID);

} // namespace Tamrivo
