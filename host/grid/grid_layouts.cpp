#include "host/grid/grid_layouts.h"

#include "core/error.h"

#include <map>

namespace Tamrivo
{

const std::vector<GridColumn>& ColumnsOfLayout(std::int32_t gridID)
{
    static const std::map<std::int32_t, std::vector<GridColumn>> layouts = {
        {21, {{"Locus Tag", ColumnKind::Tags}, {"Date Last Modified", ColumnKind::Dates}}},
    };
    const auto found = layouts.find(gridID);
    if (found == layouts.end())
        throw Failure(ErrorNumber::InvalidArgument, "Grid",
                      "There is no grid layout with the number " + std::to_string(gridID));
    return found->second;
}

} // namespace Tamrivo
