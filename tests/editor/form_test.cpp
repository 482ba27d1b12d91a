#include "tests/editor/editor_test.h"
#include "tests/fakes/form_text.h"

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

} // namespace
} // namespace Tamrivo
