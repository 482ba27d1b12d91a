#pragma once

#include "selector/grid_helper.h"

namespace Tamrivo
{

/// The host's grid helper, for grids of class `GridModel`.
class GridModelHelper : public GridHelper
{
public:
    void PrepareGrid(Gridocx& grid, std::int32_t) override;
    void ApplyLayout(Gridocx& grid, const Grid& layout, std::int32_t, std::int32_t,
                     std::int32_t) override;
    void SortByHeader(Gridocx& grid, const Grid& layout, const std::string& header,
                      std::int32_t) override;
    void HighlightRow(Gridocx& grid, std::int32_t row) override;
    std::int32_t HighlightedRowCount(const Gridocx& grid) const override;
    bool IsRowHighlighted(const Gridocx& grid, double row) const override;
    HighlightedRows GetHighlightedRows(const Gridocx& grid, std::int32_t) const override;
    void SetHighlightedRows(Gridocx& grid, const HighlightedRows& rows) override;
    std::int32_t MoveHighlightedRows(Gridocx& source, Gridocx& target) override;
    void MoveAllRows(Gridocx& source, Gridocx& target) override;
    void MoveRow(Gridocx& source, Gridocx& target, std::int32_t row) override;
};

} // namespace Tamrivo
