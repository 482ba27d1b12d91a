#include "host/panels/locus_columns.h"

#include "core/numbers.h"
#include "core/text.h"
#include "host/panels/cells.h"

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
    Range Fitting;
};

constexpr IntegerLimit integerLimits[] = {
    {&LocusFields::FragStart, "Marker.Min", Limit::FragmentRange},
    {&LocusFields::FragEnd, "Marker.Max", Limit::FragmentRange},
    {&LocusFields::RepeatLength, "Repeat", Limit::RepeatLength},
    {&LocusFields::ShortestAlleleSize, "ShortestAlleleSize", Limit::ShortestAlleleSize},
    {&LocusFields::AlleleNamingConventionTypeID,
     "AlleleNamingConventionTypeID",
     {AlleleNamingConvention::NominalSize, AlleleNamingConvention::Numeric}},
    {&LocusFields::StartAtNumeric, "StartAtNumeric", Limit::StartAtNumeric},
    {&LocusFields::PrimerLabelTypeID,
     "PrimerLabelTypeID",
     {PrimerLabel::Forward, PrimerLabel::None}},
    {&LocusFields::UserSpecifiedConfInt, "UserSpecifiedConfInt", {0, 1}},
    {&LocusFields::StutterWidth, "StutterWidth", Limit::StutterWidth},
    {&LocusFields::RelStutter, "RelStutter", Limit::RelStutter},
    {&LocusFields::MaxSpurHeight, "MaxSpurHeight", Limit::MaxSpurHeight},
    {&LocusFields::Ploidy, "Ploidy", Limit::Ploidy},
};

struct TextLimit
{
    std::string LocusFields::*Member;
    std::string_view Name;
    std::size_t MaxLength;
};

constexpr TextLimit textLimits[] = {
    {&LocusFields::LocusName, "LocusName", Limit::LocusName},
    {&LocusFields::RepeatUnitSequence, "RepeatUnitSequence", Limit::RepeatUnitSequence},
    {&LocusFields::PrimerSet, "Panel", Limit::PrimerSet},
    {&LocusFields::GenBank, "GenBank", Limit::GenBank},
    {&LocusFields::FwdPrimer, "FwdPrimer", Limit::Primer},
    {&LocusFields::RevPrimer, "RevPrimer", Limit::Primer},
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
        if (value < limit.Fitting.Low || value > limit.Fitting.High)
            misfit(limit.Name, "is " + std::to_string(value) + ", and fits from " +
                                   std::to_string(limit.Fitting.Low) + " to " +
                                   std::to_string(limit.Fitting.High));
    }
    if (fields.ConfInt < Limit::ConfInt.Low || fields.ConfInt > Limit::ConfInt.High)
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
