#pragma once

#include "selector/grid_helper.h"

#include <array>
#include <string>
#include <vector>

namespace Embed
{

/// A table of two columns without a picture: rows, their highlight, and a header.
class MemoryGrid : public Tamrivo::Gridocx
{
public:
    struct Row
    {
        std::array<std::string, 2> Cells;
        bool IsHighlighted = false;
    };

    std::vector<Row> Rows;

    double RowCount() const override { return static_cast<double>(Rows.size()); }
    void SetRowCount(double rows) override { Rows.resize(static_cast<std::size_t>(rows)); }
    std::string GetTextRowCol(double row, double column) const override;
    std::string GetValueRowCol(double row, double column) const override;
    void SetValueRowCol(double row, double column, const std::string& text, std::int32_t) override;
    void ClearRows(std::int32_t) override { Rows.clear(); }
    bool LockUpdate(bool) override { return false; }
    void Redraw(std::int32_t) override {}
    bool ReadOnly() const override { return m_readOnly; }
    void SetReadOnly(bool readOnly) override { m_readOnly = readOnly; }
    void SetLockReadOnly(bool) override {}
    void SetBackgroundColor(std::int32_t) override {}
    void SetDisabledState(std::int32_t) override {}
    std::shared_ptr<Tamrivo::GridRange> CreateRange() override;
    std::shared_ptr<Tamrivo::GridStyle> CreateStyle() override;
    std::shared_ptr<Tamrivo::GridSortInfo> CreateSortInfo() override;
    std::shared_ptr<Tamrivo::GridParam> Param() override;
    void SetStyleRange(const std::shared_ptr<Tamrivo::GridRange>&,
                       const std::shared_ptr<Tamrivo::GridStyle>&, std::int16_t) override
    {}
    void SelectRange(const std::shared_ptr<Tamrivo::GridRange>&, bool select) override;
    void SortRows(const std::shared_ptr<Tamrivo::GridRange>&, std::int32_t,
                  std::span<const std::shared_ptr<Tamrivo::GridSortInfo>>, std::int32_t) override
    {}
    void SetSetting(std::int32_t, std::variant<std::int32_t, std::int16_t>) override {}

private:
    bool m_readOnly = false;
};

class MemoryGridHelper : public Tamrivo::GridHelper
{
public:
    void PrepareGrid(Tamrivo::Gridocx&, std::int32_t) override {}
    void ApplyLayout(Tamrivo::Gridocx&, const Tamrivo::Grid&, std::int32_t, std::int32_t,
                     std::int32_t) override
    {}
    void SortByHeader(Tamrivo::Gridocx& grid, const Tamrivo::Grid&, const std::string&,
                      std::int32_t) override;
    void HighlightRow(Tamrivo::Gridocx& grid, std::int32_t row) override;
    std::int32_t HighlightedRowCount(const Tamrivo::Gridocx& grid) const override;
    bool IsRowHighlighted(const Tamrivo::Gridocx& grid, double row) const override;
    Tamrivo::HighlightedRows GetHighlightedRows(const Tamrivo::Gridocx& grid,
                                                std::int32_t) const override;
    void SetHighlightedRows(Tamrivo::Gridocx& grid, const Tamrivo::HighlightedRows& rows) override;
    std::int32_t MoveHighlightedRows(Tamrivo::Gridocx& source, Tamrivo::Gridocx& target) override;
    void MoveAllRows(Tamrivo::Gridocx& source, Tamrivo::Gridocx& target) override;
    void MoveRow(Tamrivo::Gridocx& source, Tamrivo::Gridocx& target, std::int32_t row) override;
};

} // namespace Embed
