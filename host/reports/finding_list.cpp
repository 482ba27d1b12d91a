#include "host/reports/finding_list.h"

#include "host/loci/counts.h"

#include <set>
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

std::vector<std::string> SummaryOf(const std::vector<Finding>& found)
{
    std::vector<std::string> sentences;
    for (const CheckRule& rule : CheckRules)
    {
        std::size_t count = 0;
        std::set<std::string_view> tags;
        for (const Finding& finding : found)
        {
            if (finding.Rule != &rule)
                continue;
            ++count;
            tags.insert(finding.Tag);
        }
        if (count > 0)
            sentences.push_back(std::string(SeverityText(rule.Weight)) + " " +
                                std::string(rule.Name) + ": " + std::to_string(count) + " in " +
                                CountOfLoci(tags.size()) + ", " + std::string(rule.Meaning) + ".");
    }
    return sentences;
}

} // namespace Tamrivo
