#include "platform/panels/locus_columns.h"

#include "core/numbers.h"
#include "core/text.h"
#include "platform/panels/cells.h"

#include <algorithm>
#include <array>

namespace Tamrivo
{

namespace
{

/// Stated by Color, Marker.Min, Marker.Max, Repeat and Panel, or by nothing.
constexpr std::string_view fieldsWithoutColumn[] = {"DyeIndex",     "FragStart", "FragEnd",
                                                    "RepeatLength", "PrimerSet", "ProjectID"};

struct IntegerLimit
{
    std::int32_t LocusFields::*Member;
    std::string_view Name; ///< As the table's reader knows it.
    std::int32_t Low;
    std::int32_t High;
};

constexpr IntegerLimit integerLimits[] = {
    {&LocusFields::FragStart, "Marker.Min", 0, 999},
    {&LocusFields::FragEnd, "Marker.Max", 0, 999},
    {&LocusFields::RepeatLength, "Repeat", 1, 255},
    {&LocusFields::ShortestAlleleSize, "ShortestAlleleSize", 0, 999},
    {&LocusFields::AlleleNamingConventionTypeID, "AlleleNamingConventionTypeID", 1000, 1002},
    {&LocusFields::StartAtNumeric, "StartAtNumeric", 1, 10000},
    {&LocusFields::PrimerLabelTypeID, "PrimerLabelTypeID", 1003, 1005},
    {&LocusFields::UserSpecifiedConfInt, "UserSpecifiedConfInt", 0, 1},
    {&LocusFields::StutterWidth, "StutterWidth", 1, 10},
    {&LocusFields::RelStutter, "RelStutter", 1, 100},
    {&LocusFields::MaxSpurHeight, "MaxSpurHeight", 1, 100},
    {&LocusFields::Ploidy, "Ploidy", 2, 10},
};

struct TextLimit
{
    std::string LocusFields::*Member;
    std::string_view Name;
    std::size_t MaxLength;
};

constexpr TextLimit textLimits[] = {
    {&LocusFields::LocusName, "LocusName", 128},
    {&LocusFields::RepeatUnitSequence, "RepeatUnitSequence", 10},
    {&LocusFields::PrimerSet, "Panel", 50},
    {&LocusFields::GenBank, "GenBank", 50},
    {&LocusFields::FwdPrimer, "FwdPrimer", 50},
    {&LocusFields::RevPrimer, "RevPrimer", 50},
};

/// A text whose number is in the notation of `TextLocale`.
bool IsLocaleNumber(const LocusField& field)
{
    return field.Name == "RepeatsInShortestAllele";
}

/// The number with a decimal point, if the text is the one that the number would get here.
std::string RepeatsCell(const std::string& text)
{
    const bool isOwn = IsNumeric(text) && DoubleText(ToDouble(text)) == text;
    return isOwn ? NumberCell(ToDouble(text)) : text;
}

/// Undoes `RepeatsCell`, under another locale in that one's notation.
std::string RepeatsText(const std::string& cell)
{
    const auto number = CellNumber(cell);
    return number && NumberCell(*number) == cell ? DoubleText(*number) : cell;
}

std::string CellOf(const std::string& text)
{
    return text;
}

template <class Number>
std::string CellOf(Number number)
{
    return NumberCell(static_cast<double>(number));
}

// Each gives what was expected, or nothing when the cell could be read.

std::string_view ReadCell(std::string& target, const std::string& cell)
{
    target = cell;
    return {};
}

std::string_view ReadCell(double& target, const std::string& cell)
{
    const auto number = CellNumber(cell);
    target = number.value_or(target);
    return number || Trim(cell).empty() ? "" : "a number with a decimal point";
}

std::string_view ReadCell(std::int32_t& target, const std::string& cell)
{
    const auto number = CellWholeNumber(cell);
    target = number.value_or(target);
    return number || Trim(cell).empty() ? "" : "a whole number";
}

std::string_view ReadCell(bool& target, const std::string& cell)
{
    const auto number = CellWholeNumber(cell);
    const bool fits = number == 0 || number == 1;
    target = fits ? number == 1 : target;
    return fits || Trim(cell).empty() ? "" : "1 for yes or 0 for no";
}

} // namespace

std::span<const LocusField* const> LocusFieldColumns()
{
    static const auto columns = [] {
        std::array<const LocusField*, std::size(LocusFieldTable) - std::size(fieldsWithoutColumn)>
            fields{};
        std::size_t count = 0;
        for (const LocusField& field : LocusFieldTable)
        {
            if (std::ranges::find(fieldsWithoutColumn, field.Name) == std::end(fieldsWithoutColumn))
                fields.at(count++) = &field;
        }
        return fields;
    }();
    return columns;
}

std::string FieldCell(const LocusFields& fields, const LocusField& field)
{
    if (IsLocaleNumber(field))
        return RepeatsCell(fields.RepeatsInShortestAllele);
    return std::visit([&](auto member) { return CellOf(fields.*member); }, field.Member);
}

std::string_view SetField(LocusFields& fields, const LocusField& field, const std::string& cell)
{
    if (IsLocaleNumber(field))
    {
        fields.RepeatsInShortestAllele = RepeatsText(cell);
        return {};
    }
    return std::visit([&](auto member) { return ReadCell(fields.*member, cell); }, field.Member);
}

std::vector<std::string> MisfitsOf(const LocusFields& fields)
{
    std::vector<std::string> misfits;
    const auto misfit = [&misfits](std::string_view name, const std::string& what) {
        misfits.push_back(std::string(name) + " " + what);
    };
    for (const IntegerLimit& limit : integerLimits)
    {
        const std::int32_t value = fields.*limit.Member;
        if (value < limit.Low || value > limit.High)
            misfit(limit.Name, "is " + std::to_string(value) + ", and fits from " +
                                   std::to_string(limit.Low) + " to " + std::to_string(limit.High));
    }
    if (fields.ConfInt < 0 || fields.ConfInt > 1)
        misfit("ConfInt", "is " + NumberCell(fields.ConfInt) + ", and fits from 0 to 1");
    for (const TextLimit& limit : textLimits)
    {
        const std::size_t length = CharacterCount(fields.*limit.Member);
        if (length > limit.MaxLength)
            misfit(limit.Name, "has " + std::to_string(length) + " characters, and " +
                                   std::to_string(limit.MaxLength) + " fit");
    }
    return misfits;
}

} // namespace Tamrivo
