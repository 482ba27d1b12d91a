#include "core/numbers.h"
#include "editor/field_number.h"
#include "editor/locus_editor_page.h"

#include <cmath>
#include <optional>

namespace Tamrivo
{

namespace
{

/// What a number outside its field's range becomes when the focus leaves the field.
struct RangeRepair
{
    TextField LocusEditorForm::*Field;
    const char* NotNumeric;
    std::int32_t Upper;
    const char* Over;
    std::int32_t Lower;
    const char* Under;
};

using Form = LocusEditorForm;

// A text that is no number doesn't always become the lower bound: 0 repeats and a ploidy of 1 stand
// until the field is left once more.
constexpr RangeRepair FragStart{&Form::txtFragStart, "0", 999, "999", 1, "0"};
constexpr RangeRepair FragEnd{&Form::txtFragEnd, "0", 999, "999", 1, "0"};
constexpr RangeRepair Repeat{&Form::txtRepeat, "0", 255, "255", 1, "1"};
constexpr RangeRepair Repeats{&Form::txtRepeatsInShortestAllele, "0", 1000, "1000", 1, "1"};
constexpr RangeRepair StutterWidth{&Form::txtStutterWidth, "1", 10, "10", 1, "1"};
constexpr RangeRepair RelStutter{&Form::txtRelStutter, "1", 100, "100", 1, "1"};
constexpr RangeRepair MaxSpurHeight{&Form::txtMaxSpurHeight, "1", 100, "100", 1, "1"};
constexpr RangeRepair Ploidy{&Form::txtPloidy, "1", 10, "10", 2, "2"};

void Repair(Guard& run, Form& form, const RangeRepair& row)
{
    TextField& field = form.*row.Field;
    if (!IsNumeric(field.Text()))
        run([&] { field.SetText(row.NotNumeric); });
    else if (run([&] { return IntegerIn(field) > row.Upper; }))
        run([&] { field.SetText(row.Over); });
    else if (run([&] { return IntegerIn(field) < row.Lower; }))
        run([&] { field.SetText(row.Under); });
}

/// The nearest whole number as `ToInteger` rounds, of any size; none for a text that is no number.
std::optional<double> WholeNumber(const TextField& field)
{
    if (!IsNumeric(field.Text()))
        return std::nullopt;
    return std::nearbyint(ToDouble(field.Text()));
}

} // namespace

void LocusEditorPage::txtFragStart_LostFocus()
{
    Terminal("txtFragStart_LostFocus", [&](Guard& run) {
        Repair(run, *this, FragStart);
        run([&] { udShortestAlleleSize.SetMin(IntegerIn(txtFragStart)); });
        run([&] { RaiseShortestAlleleSize(); });
        run([&] { m_oPageBase->PageChanged(); });
    });
}

void LocusEditorPage::txtFragEnd_LostFocus()
{
    Terminal("txtFragEnd_LostFocus", [&](Guard& run) {
        Repair(run, *this, FragEnd);
        run([&] { udShortestAlleleSize.SetMax(IntegerIn(txtFragEnd)); });
        run([&] { LowerShortestAlleleSize(); });
        run([&] { m_oPageBase->PageChanged(); });
    });
}

void LocusEditorPage::RaiseShortestAlleleSize()
{
    if (IntegerIn(txtShortestAlleleSize) < IntegerIn(txtFragStart))
        txtShortestAlleleSize.SetText(txtFragStart.Text());
}

void LocusEditorPage::LowerShortestAlleleSize()
{
    if (IntegerIn(txtShortestAlleleSize) > IntegerIn(txtFragEnd))
        txtShortestAlleleSize.SetText(txtFragEnd.Text());
}

// The one repair that no guard stands above, so nothing in it fails: a bound that is no number
// doesn't bind, and a size that is none becomes the first bound that there is.
void LocusEditorPage::txtShortestAlleleSize_LostFocus()
{
    const auto start = WholeNumber(txtFragStart);
    if (start && WholeNumber(txtShortestAlleleSize) < start)
        txtShortestAlleleSize.SetText(txtFragStart.Text());
    const auto end = WholeNumber(txtFragEnd);
    const auto size = WholeNumber(txtShortestAlleleSize);
    if (end && (!size || size > end))
        txtShortestAlleleSize.SetText(txtFragEnd.Text());
}

void LocusEditorPage::txtRepeat_LostFocus()
{
    Terminal("txtRepeat_LostFocus", [&](Guard& run) { Repair(run, *this, Repeat); });
}

void LocusEditorPage::txtRepeatsInShortestAllele_LostFocus()
{
    Terminal("txtRepeatsInShortestAllele_LostFocus",
             [&](Guard& run) { Repair(run, *this, Repeats); });
}

void LocusEditorPage::txtStutterWidth_LostFocus()
{
    Terminal("txtStutterWidth_LostFocus", [&](Guard& run) { Repair(run, *this, StutterWidth); });
}

void LocusEditorPage::txtRelStutter_LostFocus()
{
    Terminal("txtRelStutter_LostFocus", [&](Guard& run) { Repair(run, *this, RelStutter); });
}

void LocusEditorPage::txtMaxSpurHeight_LostFocus()
{
    Terminal("txtMaxSpurHeight_LostFocus", [&](Guard& run) { Repair(run, *this, MaxSpurHeight); });
}

void LocusEditorPage::txtPloidy_LostFocus()
{
    Terminal("txtPloidy_LostFocus", [&](Guard& run) { Repair(run, *this, Ploidy); });
}

void LocusEditorPage::txtConfInt_LostFocus()
{
    Terminal("txtConfChoice_LostFocus", [&](Guard& run) {
        if (!IsNumeric(txtConfInt.Text()))
            run([&] { txtConfInt.SetText("0"); });
        else if (run([&] { return ToDouble(txtConfInt.Text()) > 1; }))
            run([&] { txtConfInt.SetText("1"); });
        else if (run([&] { return ToDouble(txtConfInt.Text()) < 0; }))
            run([&] { txtConfInt.SetText("0"); });
    });
}

void LocusEditorPage::txtStartAtAlphanumeric_LostFocus()
{
    Terminal("txtStartAtAlphanumeric_LostFocus", [&](Guard& run) {
        if (txtStartAtAlphanumeric.Text().empty())
            run([&] { txtStartAtAlphanumeric.SetText("A"); });
    });
}

void LocusEditorPage::txtStartAtNumeric_LostFocus()
{
    Terminal("txtStartAtNumeric_LostFocus", [&](Guard& run) {
        if (txtStartAtNumeric.Text().empty())
            run([&] { txtStartAtNumeric.SetText("1"); });
    });
}

void LocusEditorPage::txtStartAtNumeric_Change()
{
    m_oPageBase->PageChanged();
}

} // namespace Tamrivo
