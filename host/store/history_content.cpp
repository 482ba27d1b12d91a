#include "host/store/history_content.h"

#include "core/error.h"
#include "core/text.h"
#include "host/database/store_failure.h"
#include "host/store/allele_row.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <cmath>
#include <type_traits>

namespace Tamrivo
{

namespace
{

using Json = nlohmann::ordered_json;

constexpr int ContentFormat = 1;

std::string Hex(const std::string& bytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hex;
    for (const char byte : bytes)
    {
        hex += digits[static_cast<unsigned char>(byte) >> 4U];
        hex += digits[static_cast<unsigned char>(byte) & 0xFU];
    }
    return hex;
}

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
Json JsonOf(const Value& value)
{
    if constexpr (std::is_same_v<Value, std::string>)
    {
        if (!IsUtf8(value))
            return Json{{"Bytes", Hex(value)}};
    }
    if constexpr (std::is_same_v<Value, double>)
    {
        if (!std::isfinite(value))
            return std::isnan(value) ? "nan" : value > 0 ? "inf" : "-inf";
    }
    return value;
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

Json JsonOfAllele(const AlleleFields& allele)
{
    Json json = Json::object();
    VisitAlleleFields(allele, [&](std::string_view name, const auto& value) {
        if (value != std::decay_t<decltype(value)>())
            json[std::string(name)] = JsonOf(value);
    });
    return json;
}

} // namespace

std::string ContentOf(const LocusState& state)
{
    Json json{
        {"Format", ContentFormat}, {"LocusTag", JsonOf(state.Tag)}, {"IsCurrent", state.IsCurrent}};
    for (const LocusField& field : LocusFieldTable)
    {
        std::visit(
            [&](auto member) { json[std::string(field.Name)] = JsonOf(state.Fields.*member); },
            field.Member);
    }
    Json& alleles = json["Alleles"] = Json::array();
    for (const AlleleFields& allele : state.Alleles)
        alleles.push_back(JsonOfAllele(allele));
    return json.dump();
}

std::string ContentOf(const ParameterState& state)
{
    return Json{{"Format", ContentFormat},
                {"Name", JsonOf(state.Name)},
                {"LocusTagListCount", state.LocusTagListCount},
                {"LocusTagIDs", state.LocusTagIDs}}
        .dump();
}

std::string ContentOf(const Dyes& dyes)
{
    Json json{{"Format", ContentFormat}};
    std::int32_t position = 0;
    for (const Dye& dye : dyes.All())
        json["Dye " + std::to_string(++position)] =
            dye.Color + (dye.Name.empty() ? "" : " " + dye.Name);
    return json.dump();
}

std::string ContentOfValue(const std::string& name, const std::string& value)
{
    return Json{{"Format", ContentFormat}, {name, JsonOf(value)}}.dump();
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

std::string AlleleRowsJson(std::int32_t locusID, const std::vector<AlleleFields>& alleles,
                           const std::vector<std::int32_t>& positions)
{
    Json rows = Json::array();
    for (const std::int32_t position : positions)
    {
        Json row{{"locusid", locusID}, {"position", position}};
        VisitAlleleFields(
            alleles[static_cast<std::size_t>(position) - 1],
            [&](std::string_view name, const auto& value) { row[FoldCase(name)] = JsonOf(value); });
        rows.push_back(std::move(row));
    }
    return rows.dump();
}

} // namespace Tamrivo
