#pragma once

#include "controls/hosted_control.h"
#include "host/alleles/allele_pane.h"

#include <cstdint>
#include <optional>
#include <string_view>

/// What a person can do with the allele pane on a form, as controls/user.h is for the controls.
/// Every operation raises `Refusal` when the pane can't be reached, is disabled or hidden, or when
/// its own rules forbid it; failures of the store and of event handlers pass through.
namespace Tamrivo::User
{

using AllelePaneControl = HostedControl<PaneAlleleList>;

/// The pane behind the control, for reading.
AllelePane& AllelesOf(const AllelePaneControl& pane);

/// Adds a row after another one, or at the end. Gives its number, counted from 1.
std::int32_t AddAllele(const AllelePaneControl& pane, std::optional<std::int32_t> after = {});
/// Adds a row of a size, nt, in its place; see `AllelePane::FieldsOfNew`. Gives its number.
std::int32_t AddAlleleOfSize(const AllelePaneControl& pane, double size);
void RemoveAllele(const AllelePaneControl& pane, std::int32_t row);
/// Changes a cell. The row goes to its place by size once it is left.
void EditAllele(const AllelePaneControl& pane, std::int32_t row, const AlleleColumn& column,
                std::string_view text);
void LeaveAllele(const AllelePaneControl& pane);
/// Remove rows, enter a block of cells or replace the list, in one step; see `AllelePane`.
void RemoveAlleles(const AllelePaneControl& pane, const std::vector<std::int32_t>& rows);
void PasteAlleles(const AllelePaneControl& pane, std::int32_t row, std::size_t column,
                  const std::vector<std::vector<std::string>>& cells);
void ReplaceAlleles(const AllelePaneControl& pane, const std::vector<AlleleFields>& alleles);
void UndoAlleles(const AllelePaneControl& pane);
void RedoAlleles(const AllelePaneControl& pane);

} // namespace Tamrivo::User
