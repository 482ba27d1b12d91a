#include "host/reports/locus_listing.h"

#include <ctime>

namespace Tamrivo
{

namespace
{

using Json = nlohmann::ordered_json;

struct Listing
{
    const Dyes& OfStore;
    Audience For;
};

struct ListedField
{
    const char* Name;
    const char* Title;
    Table::Kind Kind;
    Json (*Value)(const Locus&, const Listing&);
};

constexpr ListedField listedFields[] = {
    {"LocusTag", "Tag", Table::Text,
     [](const Locus& locus, const Listing&) -> Json { return locus.LocusTag(); }},
    {"LocusName", "Name", Table::Text,
     [](const Locus& locus, const Listing&) -> Json { return locus.LocusName; }},
    {"ProjectName", "Project", Table::Text,
     [](const Locus& locus, const Listing&) -> Json { return locus.ProjectName; }},
    {"Color", "Dye", Table::Text,
     [](const Locus& locus, const Listing& listing) -> Json {
         return listing.For == Audience::People ? listing.OfStore.TitleOf(locus.DyeIndex)
                                                : listing.OfStore.ColorOf(locus.DyeIndex);
     }},
    {"FragStart", "From (nt)", Table::Number,
     [](const Locus& locus, const Listing&) -> Json { return locus.FragStart; }},
    {"FragEnd", "To (nt)", Table::Number,
     [](const Locus& locus, const Listing&) -> Json { return locus.FragEnd; }},
    {"RepeatLength", "Repeat (nt)", Table::Number,
     [](const Locus& locus, const Listing&) -> Json { return locus.RepeatLength; }},
    {"ShortestAlleleSize", "Shortest (nt)", Table::Number,
     [](const Locus& locus, const Listing&) -> Json { return locus.ShortestAlleleSize; }},
    {"Ploidy", "Ploidy", Table::Number,
     [](const Locus& locus, const Listing&) -> Json { return locus.Ploidy; }},
    {"DateLastModified", "Changed", Table::Date,
     [](const Locus& locus, const Listing& listing) -> Json {
         const Date date = locus.DateLastModified();
         return listing.For == Audience::People ? DateText(date) : IsoDate(date);
     }},
};

} // namespace

Table LociTable(const Loci& loci, const Dyes& dyes, Audience audience)
{
    Table table;
    for (const ListedField& field : listedFields)
        table.Columns.push_back(
            {audience == Audience::People ? field.Title : field.Name, field.Kind});
    for (const auto& locus : loci)
    {
        auto& row = table.Rows.emplace_back();
        for (const ListedField& field : listedFields)
        {
            const Json value = field.Value(*locus, {dyes, audience});
            row.push_back(value.is_string() ? value.get<std::string>() : value.dump());
        }
    }
    return table;
}

Json LociJson(const Loci& loci, const Dyes& dyes)
{
    Json array = Json::array();
    for (const auto& locus : loci)
    {
        Json& object = array.emplace_back(Json::object());
        for (const ListedField& field : listedFields)
            object[field.Name] = field.Value(*locus, {dyes, Audience::Programs});
    }
    return array;
}

Loci LociOf(std::span<const std::shared_ptr<BusinessObject>> members)
{
    Loci loci;
    for (const auto& member : members)
        loci.push_back(As<Locus>(member));
    return loci;
}

std::string IsoDate(const Date& date)
{
    if (!date)
        return {};
    const std::time_t seconds = std::chrono::system_clock::to_time_t(*date);
    std::tm utc{};
    gmtime_r(&seconds, &utc);
    char text[32];
    return {text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc)};
}

std::string JsonText(const Json& json)
{
    return json.dump(2, ' ', false, Json::error_handler_t::replace);
}

} // namespace Tamrivo
