#include "contracts/locus_limits.h"
#include "core/numbers.h"
#include "core/text.h"
#include "editor/field_number.h"
#include "editor/locus_editor_page.h"

namespace Tamrivo
{

namespace
{

constexpr const char* TagRequired = "Locus Tag Name is required.";
constexpr const char* TagNotUnique = "Locus Tag Name is not unique.";
constexpr const char* RangeReversed =
    "The Fragment Range From field must be greater than the Fragment Range To field.";
constexpr const char* StartOutOfRange = "Must be an integer value between 1 and 10000.";

void MarkFault(TextField& field, const char* why)
{
    field.SetBackColor(Color::Yellow);
    field.SetToolTipText(why);
}

void ClearMark(TextField& field)
{
    field.SetBackColor(Color::WindowBackground);
    field.SetToolTipText("");
}

} // namespace

bool LocusEditorPage::TagIsValid(Guard& run)
{
    if (TrimRight(txtLocusTag.Text()).empty())
    {
        run([&] { MarkFault(txtLocusTag, TagRequired); });
        return false;
    }
    run([&] { txtLocusTag.SetBackColor(Color::WindowBackground); });
    const bool bTagIsCurrent = run([&] { return TagIsCurrent(txtLocusTag.Text()); });
    const bool bTagMustBeNew = m_bNewLocus || (m_sLoadedLocusTag.empty() && m_bBinning);
    if (bTagIsCurrent && bTagMustBeNew)
    {
        run([&] { MarkFault(txtLocusTag, TagNotUnique); });
        return false;
    }
    run([&] { txtLocusTag.SetToolTipText(""); });
    return true;
}

void LocusEditorPage::m_oPageBase_Validate(bool& bIsValid)
{
    const auto fail = [&bIsValid](TextField& field, const char* why) {
        bIsValid = false;
        MarkFault(field, why);
    };

    Propagating("m_oPageBase_Validate", [&](Guard& run) {
        bIsValid = m_bAlleleListValid;
        if (!m_bAlleleListValid)
            return;

        bIsValid = TagIsValid(run);

        if (IsNumeric(txtFragStart.Text()) && IsNumeric(txtFragEnd.Text()))
        {
            const bool bReversed =
                run([&] { return IntegerIn(txtFragStart) > IntegerIn(txtFragEnd); });
            for (TextField* field : {&txtFragStart, &txtFragEnd})
                run([&] { bReversed ? fail(*field, RangeReversed) : ClearMark(*field); });
        }

        if (optAlleleNaming.Item(2).Value())
        {
            const bool bInRange = run([&] {
                return !Trim(txtStartAtNumeric.Text()).empty() &&
                       SharedUtility().IsIntegerInRange(txtStartAtNumeric,
                                                        Limit::StartAtNumeric.Low,
                                                        Limit::StartAtNumeric.High);
            });
            run([&] {
                bInRange ? ClearMark(txtStartAtNumeric) : fail(txtStartAtNumeric, StartOutOfRange);
            });
        }
    });
}

} // namespace Tamrivo
