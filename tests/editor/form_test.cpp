#include "contracts/locus_limits.h"
#include "tests/editor/editor_test.h"
#include "tests/fakes/form_text.h"

#include <fstream>
#include <iterator>

namespace Tamrivo
{
namespace
{

TEST(LocusEditorForm, DeclaresEachControlAsItIsShown)
{
    Fakes::FakeHost host;
    const LocusEditorForm form(host);
    EXPECT_EQ(Fakes::FormText(form), Fakes::FormFile("locus_editor"));
    EXPECT_EQ(form.FocusOrder().size(), 44U);
    EXPECT_EQ(form.FocusOrder().back()->Name(), "txtShortestAlleleSize");
}

TEST(LocusEditorForm, TheGuideTellsTheLimits)
{
    std::ifstream file(GUIDE);
    std::string guide{std::istreambuf_iterator<char>(file), {}};
    guide.erase(0, guide.find("What its fields take"));
    const auto row = [&](const std::string& field, Range range, const std::string& initial) {
        const std::string limits = " | " + std::to_string(range.Low) + " | " +
                                   std::to_string(range.High) + " | " + initial + " |\n";
        const auto at = guide.find("\n| " + field + " |");
        ASSERT_NE(at, std::string::npos) << field;
        const std::string line = guide.substr(at + 1, guide.find('\n', at + 1) - at);
        EXPECT_TRUE(line.ends_with(limits)) << line;
    };
    const LocusFields fresh;
    row("fragment range", Limit::FragmentRange,
        std::to_string(fresh.FragStart) + " to " + std::to_string(fresh.FragEnd));
    row("repeat unit", Limit::RepeatLength, std::to_string(fresh.RepeatLength));
    row("repeats in the shortest allele", Limit::Repeats, fresh.RepeatsInShortestAllele);
    row("first number of numeric names", Limit::TypedStartAtNumeric,
        std::to_string(fresh.StartAtNumeric));
    row("stutter window", Limit::StutterWidth, std::to_string(fresh.StutterWidth));
    row("largest stutter", Limit::RelStutter, std::to_string(fresh.RelStutter));
    row("largest spurious peak", Limit::MaxSpurHeight, std::to_string(fresh.MaxSpurHeight));
    row("confidence interval", Limit::ConfInt, "0.5");
    row("ploidy", Limit::Ploidy, std::to_string(fresh.Ploidy));
}

} // namespace
} // namespace Tamrivo
