#pragma once

#include "host/checks/check_rules.h"
#include "host/reports/table.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

/// "error" or "warning".
std::string_view SeverityText(Severity severity);

/// Severity, rule, tag, allele, field and message, a line a finding.
Table FindingsTable(const std::vector<Finding>& found);
/// An array with an object a finding, its members named as the columns.
nlohmann::ordered_json FindingsJson(const std::vector<Finding>& found);

/// A sentence a rule that has found something: "error size-name: 2 in 1 locus, a size doesn't fit
/// the repeats that the name tells."
std::vector<std::string> SummaryOf(const std::vector<Finding>& found);

} // namespace Tamrivo
