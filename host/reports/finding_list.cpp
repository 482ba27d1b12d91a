#include "host/reports/finding_list.h"

#include <string>

namespace Tamrivo
{

namespace
{

struct FindingColumn
{
    const char* Title;
    std::string (*Text)(const Finding&);
};

constexpr FindingColumn findingColumns[] = {
    {"Severity",
     [](const Finding& finding) { return std::string(SeverityText(finding.Rule->Weight)); }},
    {"Rule", [](const Finding& finding) { return std::string(finding.Rule->Name); }},
    {"Tag", [](const Finding& finding) { return finding.Tag; }},
    {"Allele", [](const Finding& finding) { return finding.Allele; }},
    {"Field", [](const Finding& finding) { return finding.Field; }},
    {"Message", [](const Finding& finding) { return finding.Message; }},
};

} // namespace

std::string_view SeverityText(Severity severity)
{
    return severity == Severity::Error ? "error" : "warning";
}

Table FindingsTable(const std::vector<Finding>& found)
{
    Table table;
    for (const FindingColumn& column : findingColumns)
        table.Columns.push_back({column.Title});
    for (const Finding& finding : found)
    {
        auto& row = table.Rows.emplace_back();
        for (const FindingColumn& column : findingColumns)
            row.push_back(column.Text(finding));
    }
    return table;
}

nlohmann::ordered_json FindingsJson(const std::vector<Finding>& found)
{
    auto array = nlohmann::ordered_json::array();
    for (const Finding& finding : found)
    {
        auto& object = array.emplace_back(nlohmann::ordered_json::object());
        for (const FindingColumn& column : findingColumns)
            object[column.Title] = column.Text(finding);
    }
    return array;
}

} // namespace Tamrivo
