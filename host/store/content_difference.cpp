#include "host/store/content_difference.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string_view>
#include <utility>

namespace Tamrivo
{

namespace
{

using Json = nlohmann::ordered_json;

/// What people call the fields of an allele.
constexpr std::pair<std::string_view, std::string_view> AlleleWords[] = {
    {"AlleleReal1", "size"},    {"AlleleReal2", "bin from"}, {"AlleleReal3", "bin to"},
    {"AlleleReal4", "repeats"}, {"AlleleInt1", "origin"},    {"AlleleInt2", "virtual"},
};

std::string WordOf(const std::string& field)
{
    const auto* found = std::ranges::find(AlleleWords, field,
                                          &std::pair<std::string_view, std::string_view>::first);
    return found == std::end(AlleleWords) ? field : std::string(found->second);
}

Json Parse(const std::string& content)
{
    Json json = Json::parse(content, nullptr, false);
    return json.is_object() ? json : Json::object();
}

std::string TextOf(const Json& value)
{
    if (value.is_string())
        return value;
    return value.is_null() ? "" : value.dump();
}

std::string NameOf(const Json& allele)
{
    return allele.is_object() ? TextOf(allele.value("AlleleText1", Json(""))) : "";
}

/// "size 205.1, bin from 204.6, bin to 205.6".
std::string SummaryOf(const Json& allele)
{
    std::string summary;
    for (const auto& [field, value] : allele.items())
    {
        if (field != "AlleleText1")
            summary += (summary.empty() ? "" : ", ") + WordOf(field) + " " + TextOf(value);
    }
    return summary.empty() ? "no size" : summary;
}

/// What a field holds in a record of a version that didn't have it.
bool IsInitial(const Json& value)
{
    return value.is_null() || value == "" || value == 0 || value == false;
}

bool IsSame(const Json& old, const Json& now)
{
    return old.is_null() || now.is_null() ? IsInitial(old) && IsInitial(now) : old == now;
}

/// Of the members of both objects those that differ.
void CompareFields(const Json& before, const Json& after, const std::string& prefix, bool inAllele,
                   std::vector<ContentDifference>& differences)
{
    const bool areStates = !before.empty() && !after.empty();
    const auto compare = [&](const std::string& field) {
        const Json old = before.value(field, Json());
        const Json now = after.value(field, Json());
        if (field != "Alleles" && field != "Format" && !(areStates ? IsSame(old, now) : old == now))
            differences.push_back(
                {prefix + (inAllele ? WordOf(field) : field), TextOf(old), TextOf(now)});
    };
    for (const auto& [field, value] : before.items())
        compare(field);
    for (const auto& [field, value] : after.items())
    {
        if (!before.contains(field))
            compare(field);
    }
}

void CompareAlleles(const Json& before, const Json& after,
                    std::vector<ContentDifference>& differences)
{
    std::vector<Json> left(after.begin(), after.end());
    for (const Json& allele : before)
    {
        const std::string name = NameOf(allele);
        const auto twin =
            std::ranges::find_if(left, [&](const Json& other) { return NameOf(other) == name; });
        if (twin == left.end())
        {
            differences.push_back({"Allele " + name, SummaryOf(allele), ""});
            continue;
        }
        CompareFields(allele, *twin, "Allele " + name + ", ", true, differences);
        left.erase(twin);
    }
    for (const Json& allele : left)
        differences.push_back({"Allele " + NameOf(allele), "", SummaryOf(allele)});
}

} // namespace

std::vector<ContentDifference> ContentDifferences(const std::string& before,
                                                  const std::string& after)
{
    const Json old = Parse(before);
    const Json now = Parse(after);
    std::vector<ContentDifference> differences;
    CompareFields(old, now, "", false, differences);
    const Json oldAlleles = old.value("Alleles", Json::array());
    const Json nowAlleles = now.value("Alleles", Json::array());
    std::vector<ContentDifference> ofAlleles;
    CompareAlleles(oldAlleles, nowAlleles, ofAlleles);
    if (ofAlleles.empty() && oldAlleles != nowAlleles)
        ofAlleles.push_back({"Alleles", "the same ones", "in another order"});
    differences.insert(differences.end(), ofAlleles.begin(), ofAlleles.end());
    return differences;
}

} // namespace Tamrivo
