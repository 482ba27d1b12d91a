#include "core/text.h"
#include "editor/locus_editor_page.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

constexpr std::int16_t Backspace = 8;

/// Codes from `First` to `Last`, both of them included.
struct KeyRange
{
    std::int16_t First;
    std::int16_t Last;
};

constexpr KeyRange Digit{'0', '9'};
constexpr KeyRange Upper{'A', 'Z'};
constexpr KeyRange Lower{'a', 'z'};
constexpr KeyRange Back{Backspace, Backspace};
constexpr KeyRange FullStop{'.', '.'};

// What a filter lets through.
constexpr KeyRange Digits[] = {Digit, Back, FullStop};
constexpr KeyRange StrictDigits[] = {Digit, Back};
constexpr KeyRange Letters[] = {Upper, Lower, Back, FullStop};
constexpr KeyRange DecimalAlways[] = {Digit};
constexpr KeyRange DecimalOnce[] = {Back, FullStop};

template <std::size_t Count>
bool LetsThrough(const KeyRange (&filter)[Count], std::int16_t key)
{
    return std::ranges::any_of(
        filter, [key](const KeyRange& range) { return range.First <= key && key <= range.Last; });
}

/// The body of a handler that swallows what its filter doesn't let through.
template <std::size_t Count>
auto Filter(const KeyRange (&filter)[Count], std::int16_t& key)
{
    return [&](Guard&) {
        if (!LetsThrough(filter, key))
            key = 0;
    };
}

} // namespace

void LocusEditorPage::txtFragStart_KeyPress(std::int16_t& KeyAscii)
{
    Terminal("txtFragStart_KeyPress", Filter(Digits, KeyAscii));
}

void LocusEditorPage::txtFragEnd_KeyPress(std::int16_t& KeyAscii)
{
    Terminal("txtFragEnd_KeyPress", Filter(Digits, KeyAscii));
}

void LocusEditorPage::txtRepeat_KeyPress(std::int16_t& KeyAscii)
{
    Terminal("txtRepeat_KeyPress", Filter(Digits, KeyAscii));
}

void LocusEditorPage::txtRepeatsInShortestAllele_KeyPress(std::int16_t& KeyAscii)
{
    Terminal("txtRepeatsInShortestAllele_KeyPress", Filter(Digits, KeyAscii));
}

void LocusEditorPage::txtShortestAlleleSize_KeyPress(std::int16_t& KeyAscii)
{
    Terminal("txtShortestAlleleSize_KeyPress", Filter(Digits, KeyAscii));
}

void LocusEditorPage::txtStutterWidth_KeyPress(std::int16_t& KeyAscii)
{
    Terminal("txtStutterWidth_KeyPress", Filter(Digits, KeyAscii));
}

void LocusEditorPage::txtRelStutter_KeyPress(std::int16_t& KeyAscii)
{
    Terminal("txtRelStutter_KeyPress", Filter(Digits, KeyAscii));
}

void LocusEditorPage::txtMaxSpurHeight_KeyPress(std::int16_t& KeyAscii)
{
    Terminal("txtMaxSpurHeight_KeyPress", Filter(Digits, KeyAscii));
}

void LocusEditorPage::txtStartAtAlphanumeric_KeyPress(std::int16_t& KeyAscii)
{
    Terminal("txtStartAtAlphanumeric_KeyPress", Filter(Letters, KeyAscii));
}

void LocusEditorPage::txtStartAtNumeric_KeyPress(std::int16_t& KeyAscii)
{
    if (!LetsThrough(StrictDigits, KeyAscii))
        KeyAscii = 0;
}

void LocusEditorPage::txtConfInt_KeyPress(std::int16_t& KeyAscii)
{
    Terminal("txtConfChoice_KeyPress", [&](Guard& run) {
        if (LetsThrough(DecimalAlways, KeyAscii))
            return;
        if (!LetsThrough(DecimalOnce, KeyAscii) ||
            run([&] { return IsDecimalPresent(KeyAscii, txtConfInt.Text()); }))
            KeyAscii = 0;
    });
}

bool LocusEditorPage::IsDecimalPresent(std::int16_t iKey, const std::string& sText)
{
    return Propagating("IsDecimalPresent", [&](Guard& run) {
        return run([&] {
            const auto code = static_cast<std::uint16_t>(iKey);
            return Decode(sText).find(char32_t{code}) != std::u32string::npos;
        });
    });
}

} // namespace Tamrivo
