#include "host/store/history_content.h"

#include "core/error.h"
#include "host/database/store_failure.h"
#include "host/store/allele_row.h"
#include "host/store/json_text.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <type_traits>

namespace Tamrivo
{

namespace
{

using Json = nlohmann::ordered_json;

constexpr int ContentFormat = 1;

std::string FromHex(const std::string& hex)
{
    std::string bytes;
    for (std::size_t at = 0; at + 1 < hex.size(); at += 2)
    {
        unsigned char byte = 0;
        std::from_chars(hex.data() + at, hex.data() + at + 2, byte, 16);
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

template <class Value>
void Read(const Json& object, std::string_view name, Value& value)
{
    const auto found = object.find(name);
    if (found == object.end())
        return;
    if constexpr (std::is_same_v<Value, std::string>)
    {
        if (found->is_object())
        {
            value = FromHex(found->at("Bytes"));
            return;
        }
    }
    if constexpr (std::is_same_v<Value, double>)
    {
        if (found->is_string())
        {
            value = std::stod(found->get<std::string>());
            return;
        }
    }
    found->get_to(value);
}

/// Begins the object of a content.
JsonText BeginContent()
{
    JsonText json;
    json.BeginObject();
    json.Add("Format", ContentFormat);
    return json;
}

std::string EndContent(JsonText& json)
{
    json.EndObject();
    return json.Text();
}

} // namespace

std::string ContentOf(const LocusState& state)
{
    JsonText json = BeginContent();
    json.Add("LocusTag", state.Tag);
    json.Add("IsCurrent", state.IsCurrent);
    for (const LocusField& field : LocusFieldTable)
        std::visit([&](auto member) { json.Add(field.Name, state.Fields.*member); }, field.Member);
    json.Name("Alleles");
    json.BeginArray();
    for (const AlleleFields& allele : state.Alleles)
    {
        json.BeginObject();
        VisitAlleleFields(allele, [&](std::string_view name, const auto& value) {
            if (value != std::decay_t<decltype(value)>())
                json.Add(name, value);
        });
        json.EndObject();
    }
    json.EndArray();
    return EndContent(json);
}

std::string ContentOf(const ParameterState& state)
{
    JsonText json = BeginContent();
    json.Add("Name", state.Name);
    json.Add("LocusTagListCount", state.LocusTagListCount);
    json.Name("LocusTagIDs");
    json.BeginArray();
    for (const std::int32_t tagID : state.LocusTagIDs)
        json.Value(tagID);
    json.EndArray();
    return EndContent(json);
}

std::string ContentOf(const Dyes& dyes)
{
    JsonText json = BeginContent();
    std::int32_t position = 0;
    for (const Dye& dye : dyes.All())
        json.Add("Dye " + std::to_string(++position),
                 dye.Color + (dye.Name.empty() ? "" : " " + dye.Name));
    return EndContent(json);
}

std::string ContentOfValue(const std::string& name, const std::string& value)
{
    JsonText json = BeginContent();
    json.Add(name, value);
    return EndContent(json);
}

LocusState LocusStateOf(const HistoryRecord& record)
{
    const std::string what =
        "Revision " + std::to_string(record.Revision) + " of \"" + record.Name + "\" ";
    if (record.Content.empty())
        throw Failure(StoreError::NotFound, "History",
                      what + "is its deletion: there was no such locus any more. Name an earlier "
                             "revision");
    try
    {
        const Json json = Json::parse(record.Content);
        if (json.at("Format").get<int>() > ContentFormat)
            throw Failure(StoreError::NewerVersion, "History",
                          what + "was written by a newer version of this program. Open it with "
                                 "that one");
        LocusState state;
        Read(json, "LocusTag", state.Tag);
        Read(json, "IsCurrent", state.IsCurrent);
        for (const LocusField& field : LocusFieldTable)
        {
            std::visit([&](auto member) { Read(json, field.Name, state.Fields.*member); },
                       field.Member);
        }
        for (const Json& row : json.at("Alleles"))
        {
            AlleleFields& allele = state.Alleles.emplace_back();
            VisitAlleleFields(allele,
                              [&](std::string_view name, auto& value) { Read(row, name, value); });
        }
        return state;
    }
    catch (const std::exception& error)
    {
        if (dynamic_cast<const Failure*>(&error))
            throw;
        throw Failure(StoreError::NotAStore, "History",
                      what + "can't be read: its record in the history is damaged. "
                             "tamrivo history --verify tells which records are");
    }
}

} // namespace Tamrivo
