#include "console/shell/readout.h"

#include "console/shell/words.h"
#include "controls/hosted_control.h"
#include "core/numbers.h"
#include "host/alleles/allele_pane.h"

#include <algorithm>
#include <iterator>
#include <type_traits>

namespace Tamrivo
{

namespace
{

template <class Value>
std::string Text(const Value& value)
{
    if constexpr (std::is_same_v<Value, bool>)
        return value ? "true" : "false";
    else if constexpr (std::is_same_v<Value, std::int32_t>)
        return std::to_string(value);
    else if constexpr (std::is_same_v<Value, double>)
        return DoubleText(value);
    else
        return Quoted(value);
}

template <class Value>
void PrintProperty(std::ostream& out, std::string_view name, const Value& value)
{
    out << name << '=' << Text(value) << '\n';
}

/// Adds the reasons as "NAME(ROW)", all of one row in one property.
void AddReasons(Properties& properties, const std::string& name,
                const std::vector<AlleleProblem>& reasons)
{
    for (const AlleleProblem& problem : reasons)
    {
        const std::string property = name + "(" + std::to_string(problem.Row) + ")";
        if (properties.back().first == property)
            std::get<std::string>(properties.back().second) += "; " + problem.Reason;
        else
            properties.emplace_back(property, problem.Reason);
    }
}

Properties PaneProperties(const AllelePane& pane)
{
    Properties properties{{"RowCount", static_cast<std::int32_t>(pane.Rows().size())},
                          {"Valid", pane.IsValid()}};
    AddReasons(properties, "Problem", pane.Problems());
    AddReasons(properties, "Warning", pane.Warnings());
    return properties;
}

} // namespace

std::string ValueText(const PropertyValue& value)
{
    return std::visit([](const auto& each) { return Text(each); }, value);
}

void PrintProperties(std::ostream& out, const Properties& properties)
{
    for (const auto& [name, value] : properties)
        out << name << '=' << ValueText(value) << '\n';
}

void PrintRow(std::ostream& out, const std::vector<std::string>& cells)
{
    for (const std::string& cell : cells)
        out << (&cell == &cells.front() ? "" : "\t") << OnOneLine(cell);
    out << '\n';
}

Properties ReadableProperties(const Control& control)
{
    Properties properties = control.Properties();
    if (const auto* hosted = dynamic_cast<const HostedControl<PaneAlleleList>*>(&control))
    {
        if (const auto* pane = dynamic_cast<const AllelePane*>(&hosted->Object()))
            std::ranges::copy(PaneProperties(*pane), std::back_inserter(properties));
    }
    return properties;
}

void PrintLocus(std::ostream& out, Locus& locus)
{
    PrintProperty(out, "LocusTag", locus.LocusTag());
    for (const LocusField& field : LocusFieldTable)
        std::visit([&](auto member) { PrintProperty(out, field.Name, locus.*member); },
                   field.Member);
    PrintProperty(out, "DateLastModified", DateText(locus.DateLastModified()));
    PrintProperty(out, "IsCurrent", locus.IsCurrent());
    PrintProperty(out, "LocusID", locus.LocusID());
    PrintProperty(out, "LocusTagID", locus.LocusTagID());
}

} // namespace Tamrivo
