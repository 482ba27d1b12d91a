#pragma once

#include "contracts/locus.h"
#include "host/loci/dyes.h"
#include "host/reports/table.h"

#include <nlohmann/json.hpp>

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace Tamrivo
{

// Loci as lists of them show them: tag, name, project, dye, range, repeat unit,
// shortest allele, ploidy and date.

/// Whom a listing is for. People get titles with units, and dates as their locale has them;
/// programs get names of fields, and dates as ISO 8601 in UTC.
enum class Audience
{
    People,
    Programs,
};

using Loci = std::vector<std::shared_ptr<Locus>>;

Table LociTable(const Loci& loci, const Dyes& dyes, Audience audience);
/// An array with an object for each locus.
nlohmann::ordered_json LociJson(const Loci& loci, const Dyes& dyes);

/// The members of a list of loci.
Loci LociOf(std::span<const std::shared_ptr<BusinessObject>> members);

/// The moment as ISO 8601, or empty.
std::string IsoDate(const Date& date);

/// JSON as it is printed. Bytes that aren't UTF-8 become U+FFFD.
std::string JsonText(const nlohmann::ordered_json& json);

} // namespace Tamrivo
