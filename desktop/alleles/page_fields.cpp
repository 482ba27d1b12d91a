#include "desktop/alleles/page_fields.h"

#include "core/numbers.h"
#include "editor/locus_editor_form.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <limits>

namespace Tamrivo
{

namespace
{

using Page = LocusEditorForm;

struct PageField
{
    std::string_view Name; ///< In `LocusFieldTable`.
    const Control& (*ControlOn)(Page&);
    void (*Take)(Page&, LocusFields&);
};

void TakeValue(const TextField& field, std::string& value)
{
    value = field.Text();
}

void TakeValue(const TextField& field, double& value)
{
    if (IsNumeric(field.Text()))
        value = ToDouble(field.Text());
}

void TakeValue(const TextField& field, std::int32_t& value)
{
    double number = value;
    TakeValue(field, number);
    if (std::abs(number) <= std::numeric_limits<std::int32_t>::max())
        value = static_cast<std::int32_t>(number);
}

void TakeValue(const CheckBox& box, bool& value)
{
    value = box.Value() != 0;
}

void TakeValue(const CheckBox& box, std::int32_t& value)
{
    value = box.Value() == 1 ? 1 : 0;
}

void TakeValue(const ComboBox& combo, std::int32_t& value)
{
    if (combo.ListIndex() >= 0)
        value = combo.ListIndex();
}

void TakeConvention(Page& page, LocusFields& fields)
{
    // In the order of the options.
    constexpr std::int32_t conventions[] = {AlleleNamingConvention::NominalSize,
                                            AlleleNamingConvention::Alphabetic,
                                            AlleleNamingConvention::Numeric};
    for (const OptionButton& option : page.optAlleleNaming)
    {
        if (option.Value())
            fields.AlleleNamingConventionTypeID = conventions[*option.Index()];
    }
}

template <auto Source>
const Control& On(Page& page)
{
    return page.*Source;
}

template <auto Source, auto Member>
void TakeFrom(Page& page, LocusFields& fields)
{
    TakeValue(page.*Source, fields.*Member);
}

template <auto Source, auto Member>
constexpr PageField FieldRow(std::string_view name)
{
    return {name, On<Source>, TakeFrom<Source, Member>};
}

using Fields = LocusFields;

constexpr PageField pageFields[] = {
    FieldRow<&Page::cmbDye, &Fields::DyeIndex>("DyeIndex"),
    FieldRow<&Page::txtFragStart, &Fields::FragStart>("FragStart"),
    FieldRow<&Page::txtFragEnd, &Fields::FragEnd>("FragEnd"),
    FieldRow<&Page::txtRepeat, &Fields::RepeatLength>("RepeatLength"),
    FieldRow<&Page::txtRepeatUnitSequence, &Fields::RepeatUnitSequence>("RepeatUnitSequence"),
    FieldRow<&Page::txtShortestAlleleSize, &Fields::ShortestAlleleSize>("ShortestAlleleSize"),
    FieldRow<&Page::txtRepeatsInShortestAllele, &Fields::RepeatsInShortestAllele>(
        "RepeatsInShortestAllele"),
    {"AlleleNamingConventionTypeID", On<&Page::fraAlleleNamingConvention>, TakeConvention},
    FieldRow<&Page::txtStartAtAlphanumeric, &Fields::StartAtAlphanumeric>("StartAtAlphanumeric"),
    FieldRow<&Page::txtStartAtNumeric, &Fields::StartAtNumeric>("StartAtNumeric"),
    FieldRow<&Page::txtPrimerSet, &Fields::PrimerSet>("PrimerSet"),
    FieldRow<&Page::txtFwd, &Fields::FwdPrimer>("FwdPrimer"),
    FieldRow<&Page::txtRev, &Fields::RevPrimer>("RevPrimer"),
    FieldRow<&Page::txtConfInt, &Fields::ConfInt>("ConfInt"),
    FieldRow<&Page::chkUserSpecified, &Fields::UserSpecifiedConfInt>("UserSpecifiedConfInt"),
    FieldRow<&Page::chkSearchForStutter, &Fields::SearchForStutter>("SearchForStutter"),
    FieldRow<&Page::chkDetShortStutter, &Fields::DetShortStutter>("DetShortStutter"),
    FieldRow<&Page::txtStutterWidth, &Fields::StutterWidth>("StutterWidth"),
};

} // namespace

LocusFields FieldsOn(LocusEditorForm& page, const LocusFields& locus)
{
    LocusFields fields = locus;
    for (const PageField& field : pageFields)
        field.Take(page, fields);
    return fields;
}

const Control* ControlOf(LocusEditorForm& page, std::string_view field)
{
    const auto* const found = std::ranges::find(pageFields, field, &PageField::Name);
    return found == std::end(pageFields) ? nullptr : &found->ControlOn(page);
}

} // namespace Tamrivo
