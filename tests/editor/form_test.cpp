#include "tests/editor/editor_test.h"

#include <map>
#include <set>

namespace Tamrivo
{
namespace
{

constexpr const char* FocusOrder =
    "txtLocusTag cmbProjects SSTab1 cmdSaveAs txtLocusName cmbDye txtFragStart txtFragEnd "
    "txtRepeat txtRepeatsInShortestAllele optAlleleNaming(0) optAlleleNaming(1) "
    "optAlleleNaming(2) txtStartAtAlphanumeric txtStartAtNumeric txtPrimerSet txtGenBank "
    "txtRepeatUnitSequence txtPloidy optPrimerLabel(0) optPrimerLabel(1) optPrimerLabel(2) txtFwd "
    "txtRev chkSearchForStutter txtStutterWidth UpDown1 txtRelStutter UpDown2 chkDetShortStutter "
    "chkDetLongStutter chkUserSpecified txtConfInt chkDetectSpuriousPeaks txtMaxSpurHeight "
    "UpDown3 chkApparentSizeIncludesA chkDetectA chkUseA udPloidy UpDown4 UpDown5 "
    "cmdGenAlleleList txtShortestAlleleSize ";

constexpr const char* Limits =
    "txtLocusTag 128 txtLocusName 128 txtFragStart 3 txtFragEnd 3 txtRepeat 3 "
    "txtRepeatsInShortestAllele 4 txtStartAtAlphanumeric 1 txtStartAtNumeric 3 txtPrimerSet 50 "
    "txtGenBank 50 txtRepeatUnitSequence 10 txtPloidy 2 txtFwd 50 txtRev 50 txtStutterWidth 2 "
    "txtRelStutter 3 txtConfInt 5 txtMaxSpurHeight 3 txtShortestAlleleSize 3 ";

TEST(LocusEditorForm, HoldsWhatAPersonCountsOn)
{
    Fakes::FakeHost host;
    LocusEditorForm form(host);

    std::map<std::string, int> kinds;
    std::set<int> tabIndexes;
    for (const Control* control : form.Controls())
    {
        tabIndexes.insert(control->TabIndex());
        kinds["text field"] += dynamic_cast<const TextField*>(control) != nullptr ? 1 : 0;
        kinds["label"] += dynamic_cast<const Label*>(control) != nullptr ? 1 : 0;
        kinds["check box"] += dynamic_cast<const CheckBox*>(control) != nullptr ? 1 : 0;
        kinds["frame"] += dynamic_cast<const Frame*>(control) != nullptr ? 1 : 0;
        kinds["spin button"] += dynamic_cast<const SpinButton*>(control) != nullptr ? 1 : 0;
    }
    EXPECT_EQ(kinds, (std::map<std::string, int>{{"check box", 9},
                                                 {"frame", 9},
                                                 {"label", 35},
                                                 {"spin button", 9},
                                                 {"text field", 19}}));
    EXPECT_EQ(form.Controls().size(), 93U);
    EXPECT_EQ(tabIndexes.size(), form.Controls().size());
    EXPECT_EQ(*tabIndexes.begin(), 0);
    EXPECT_EQ(*tabIndexes.rbegin(), 92);

    std::string order;
    for (const Control* control : form.FocusOrder())
        order += control->Name() + " ";
    EXPECT_EQ(order, FocusOrder);

    std::string limits;
    for (const Control* control : form.InTabOrder())
    {
        if (const auto* field = dynamic_cast<const TextField*>(control))
            limits += field->Name() + " " + std::to_string(field->MaxLength()) + " ";
    }
    EXPECT_EQ(limits, Limits);

    EXPECT_EQ(form.chkDetShortStutter.Caption(), "Detect stutter shorter than alelle");
    EXPECT_EQ(form.chkDetLongStutter.Caption(), "Detect stutter longer than allele");
    EXPECT_EQ(form.optPrimerLabel.Item(1).Caption(), "Rever&se");
    EXPECT_EQ(form.txtFragStart.Text() + form.txtFragEnd.Text() + form.txtPloidy.Text(), "606402");
    EXPECT_EQ(&form.optPrimerLabel.Item(2).Parent(), &form.fraPrimerLabel.Item(2));
    EXPECT_FALSE(form.cmdSaveAs.Enabled());

    for (const Control* control : form.Controls())
    {
        const auto* spin = dynamic_cast<const SpinButton*>(control);
        if (spin == nullptr || spin->Linked() == nullptr)
            continue;
        const int edge = spin->Linked()->Place().Left + spin->Linked()->Place().Width;
        EXPECT_LE(std::abs(spin->Place().Left - edge), 1) << spin->Name();
    }
}

} // namespace
} // namespace Tamrivo
