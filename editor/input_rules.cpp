#include "contracts/locus_limits.h"
#include "core/numbers.h"
#include "core/text.h"
#include "editor/field_number.h"
#include "editor/locus_editor_page.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

namespace Tamrivo
{

namespace
{

/// Key codes from `First` to `Last`, both of them included.
struct Keys
{
    std::int16_t First;
    std::int16_t Last;
};

/// A filter swallows every key that it doesn't let through.
struct Filter
{
    std::span<const Keys> Always;
    std::span<const Keys> Once = {}; ///< As long as the text doesn't hold the character.
};

constexpr Keys Digit{'0', '9'};
constexpr Keys Backspace{8, 8};
constexpr Keys FullStop{'.', '.'};

constexpr Keys JustDigits[] = {Digit};
constexpr Keys DigitsAndBack[] = {Digit, Backspace};
constexpr Keys DigitsAndStop[] = {Digit, Backspace, FullStop};
constexpr Keys LettersAndStop[] = {{'A', 'Z'}, {'a', 'z'}, Backspace, FullStop};
constexpr Keys BackAndStop[] = {Backspace, FullStop};

constexpr Filter Digits{DigitsAndStop};
constexpr Filter StrictDigits{DigitsAndBack};
constexpr Filter Letters{LettersAndStop};
constexpr Filter Decimal{JustDigits, BackAndStop};

// The rows of the tables. `Procedure` is the name that a failure is reported under.

struct KeyRow
{
    TextField LocusEditorForm::*Field;
    const Filter& Through;
    const char* Procedure; ///< Null: it has no guard.
};

/// A number outside its range becomes the bound that it is past.
struct RepairRow
{
    TextField LocusEditorForm::*Field;
    const char* NotNumeric; ///< What a text becomes that is no number.
    Range Kept;
    std::int32_t Least; ///< What is less becomes the lower bound.
    double (*Read)(const TextField& field);
    const char* Procedure;
    void (LocusEditorPage::*Then)(Guard& run) = nullptr;
};

/// An empty text becomes another.
struct EmptyRow
{
    TextField LocusEditorForm::*Field;
    const char* Filling;
    const char* Procedure;
};

double Whole(const TextField& field)
{
    return IntegerIn(field);
}

double Real(const TextField& field)
{
    return ToDouble(field.Text());
}

/// The nearest whole number as `ToInteger` rounds, of any size; none for a text that is no number.
std::optional<double> WholeOfAnySize(const TextField& field)
{
    if (!IsNumeric(field.Text()))
        return std::nullopt;
    return std::nearbyint(ToDouble(field.Text()));
}

bool Holds(std::span<const Keys> keys, std::int16_t key)
{
    return std::ranges::any_of(
        keys, [key](const Keys& range) { return range.First <= key && key <= range.Last; });
}

void Repair(Guard& run, TextField& field, const RepairRow& row)
{
    if (!IsNumeric(field.Text()))
        run([&] { field.SetText(row.NotNumeric); });
    else if (run([&] { return row.Read(field) > row.Kept.High; }))
        run([&] { field.SetText(IntegerText(row.Kept.High)); });
    else if (run([&] { return row.Read(field) < row.Least; }))
        run([&] { field.SetText(IntegerText(row.Kept.Low)); });
}

} // namespace

struct LocusEditorPage::InputRules
{
    using Page = LocusEditorPage;

    static constexpr KeyRow KeyRows[] = {
        {&Page::txtFragStart, Digits, "txtFragStart_KeyPress"},
        {&Page::txtFragEnd, Digits, "txtFragEnd_KeyPress"},
        {&Page::txtRepeat, Digits, "txtRepeat_KeyPress"},
        {&Page::txtRepeatsInShortestAllele, Digits, "txtRepeatsInShortestAllele_KeyPress"},
        {&Page::txtShortestAlleleSize, Digits, "txtShortestAlleleSize_KeyPress"},
        {&Page::txtStutterWidth, Digits, "txtStutterWidth_KeyPress"},
        {&Page::txtRelStutter, Digits, "txtRelStutter_KeyPress"},
        {&Page::txtMaxSpurHeight, Digits, "txtMaxSpurHeight_KeyPress"},
        {&Page::txtStartAtAlphanumeric, Letters, "txtStartAtAlphanumeric_KeyPress"},
        {&Page::txtStartAtNumeric, StrictDigits, nullptr},
        {&Page::txtConfInt, Decimal, "txtConfChoice_KeyPress"},
    };

    // A text that is no number doesn't always become the lower bound: 0 repeats and a ploidy of 1
    // stand until the field is left once more.
    static constexpr RepairRow RepairRows[] = {
        {&Page::txtFragStart, "0", Limit::FragmentRange, 1, Whole, "txtFragStart_LostFocus",
         &Page::FragStartLeft},
        {&Page::txtFragEnd, "0", Limit::FragmentRange, 1, Whole, "txtFragEnd_LostFocus",
         &Page::FragEndLeft},
        {&Page::txtRepeat, "0", Limit::RepeatLength, 1, Whole, "txtRepeat_LostFocus"},
        {&Page::txtRepeatsInShortestAllele, "0", Limit::Repeats, 1, Whole,
         "txtRepeatsInShortestAllele_LostFocus"},
        {&Page::txtStutterWidth, "1", Limit::StutterWidth, 1, Whole, "txtStutterWidth_LostFocus"},
        {&Page::txtRelStutter, "1", Limit::RelStutter, 1, Whole, "txtRelStutter_LostFocus"},
        {&Page::txtMaxSpurHeight, "1", Limit::MaxSpurHeight, 1, Whole,
         "txtMaxSpurHeight_LostFocus"},
        {&Page::txtPloidy, "1", Limit::Ploidy, 2, Whole, "txtPloidy_LostFocus"},
        {&Page::txtConfInt, "0", Limit::ConfInt, 0, Real, "txtConfChoice_LostFocus"},
    };

    static constexpr EmptyRow EmptyRows[] = {
        {&Page::txtStartAtAlphanumeric, "A", "txtStartAtAlphanumeric_LostFocus"},
        {&Page::txtStartAtNumeric, "1", "txtStartAtNumeric_LostFocus"},
    };
};

void LocusEditorPage::ConnectInputRules()
{
    for (const KeyRow& row : InputRules::KeyRows)
    {
        TextField& field = this->*row.Field;
        m_connections.On(field.KeyPress, [this, &field, &row](std::int16_t& KeyAscii) {
            const auto filter = [&] {
                const bool bPasses = Holds(row.Through.Always, KeyAscii) ||
                                     (Holds(row.Through.Once, KeyAscii) &&
                                      !IsDecimalPresent(KeyAscii, field.Text()));
                if (!bPasses)
                    KeyAscii = 0;
            };
            if (row.Procedure == nullptr)
                filter();
            else
                Terminal(row.Procedure, [&](Guard& run) { run(filter); });
        });
    }
    for (const RepairRow& row : InputRules::RepairRows)
    {
        TextField& field = this->*row.Field;
        m_connections.On(field.LostFocus, [this, &field, &row] {
            Terminal(row.Procedure, [&](Guard& run) {
                Repair(run, field, row);
                if (row.Then != nullptr)
                    (this->*row.Then)(run);
            });
        });
    }
    for (const EmptyRow& row : InputRules::EmptyRows)
    {
        TextField& field = this->*row.Field;
        m_connections.On(field.LostFocus, [this, &field, &row] {
            Terminal(row.Procedure, [&](Guard& run) {
                if (field.Text().empty())
                    run([&] { field.SetText(row.Filling); });
            });
        });
    }
}

bool LocusEditorPage::IsDecimalPresent(std::int16_t iKey, const std::string& sText)
{
    return Propagating("IsDecimalPresent", [&](Guard& run) {
        return run([&] {
            const auto nCode = static_cast<std::uint16_t>(iKey);
            return Decode(sText).find(char32_t{nCode}) != std::u32string::npos;
        });
    });
}

void LocusEditorPage::FragStartLeft(Guard& run)
{
    run([&] { udShortestAlleleSize.SetMin(IntegerIn(txtFragStart)); });
    run([&] { RaiseShortestAlleleSize(); });
    run([&] { m_oPageBase->PageChanged(); });
}

void LocusEditorPage::FragEndLeft(Guard& run)
{
    run([&] { udShortestAlleleSize.SetMax(IntegerIn(txtFragEnd)); });
    run([&] { LowerShortestAlleleSize(); });
    run([&] { m_oPageBase->PageChanged(); });
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
    const auto start = WholeOfAnySize(txtFragStart);
    if (start && WholeOfAnySize(txtShortestAlleleSize) < start)
        txtShortestAlleleSize.SetText(txtFragStart.Text());
    const auto end = WholeOfAnySize(txtFragEnd);
    const auto size = WholeOfAnySize(txtShortestAlleleSize);
    if (end && (!size || size > end))
        txtShortestAlleleSize.SetText(txtFragEnd.Text());
}

void LocusEditorPage::txtStartAtNumeric_Change()
{
    m_oPageBase->PageChanged();
}

} // namespace Tamrivo
