#include "tests/editor/editor_test.h"

namespace Tamrivo
{
namespace
{

using ValidationTest = EditorTest;

constexpr const char* Required = "Locus Tag Name is required.";
constexpr const char* NotUnique = "Locus Tag Name is not unique.";
constexpr const char* Range =
    "The Fragment Range From field must be greater than the Fragment Range To field.";
constexpr const char* Start = "Must be an integer value between 1 and 10000.";

std::string Mark(const TextField& field)
{
    EXPECT_EQ(field.BackColor(), field.ToolTipText().empty() ? -2147483643 : 65535);
    return field.ToolTipText();
}

TEST_F(ValidationTest, MarksTheTagByTheModeOfThePage)
{
    struct Case
    {
        Mode Opened;
        const char* Tag;
        const char* Tip;
    };
    const Case cases[] = {
        {Mode::New, "", Required},
        {Mode::New, "   ", Required},
        {Mode::New, "fresh", ""},
        {Mode::New, "tpox  ", NotUnique},
        {Mode::New, " TPOX", ""},
        {Mode::Edit, "TPOX", ""},
        {Mode::Edit, "vWA", ""},
        {Mode::EditUntagged, "TPOX", ""},
        {Mode::NewBinning, "TPOX", NotUnique},
        {Mode::BinningTagged, "TPOX", ""},
        {Mode::BinningUntagged, "TPOX", NotUnique},
        {Mode::BinningUntagged, "fresh", ""},
    };
    for (const auto& [mode, tag, tip] : cases)
    {
        EditorHost editor;
        editor.Open(mode);
        editor.Page.txtLocusTag.SetText("something else");
        const int changes = editor.Host.Base->Changes;
        editor.Page.txtLocusTag.SetText(tag);
        EXPECT_EQ(editor.Host.Base->Changes, changes + 1);
        EXPECT_EQ(Mark(editor.Page.txtLocusTag), tip) << tag;
        EXPECT_EQ(editor.Host.Base->IsValid, std::string(tip).empty());
    }
}

TEST_F(ValidationTest, TestsTheRangeOnlyBetweenNumbers)
{
    Open(Mode::Edit);
    const auto expect = [&](const char* start, const char* end, const char* tip, bool valid) {
        Page.txtFragStart.SetText(start);
        Page.txtFragEnd.SetText(end);
        EXPECT_EQ(Host.Base->Ask(), valid);
        EXPECT_EQ(Mark(Page.txtFragStart), tip) << start << " " << end;
        EXPECT_EQ(Mark(Page.txtFragEnd), tip);
    };
    expect("100", "100", "", true);
    expect("101", "100", Range, false);
    expect("", "100", Range, true);
    expect("100.4", "100", "", true);

    Page.txtFragStart.SetText("99999999999");
    EXPECT_EQ(FailureOf([&] { Host.Base->Ask(); }), ErrorNumber::OutOfRange);
    EXPECT_EQ(Reports(), (Tamrivo::Reports{{"m_oPageBase_Validate", false}}));
    EXPECT_TRUE(Host.Base->IsValid);
}

TEST_F(ValidationTest, TestsTheNumericStartOnlyWhileItCounts)
{
    Open(Mode::Edit);
    Page.optAlleleNaming.Item(2).SetValue(true);
    const std::pair<const char*, const char*> cases[] = {
        {"0", Start}, {"1", ""},    {"10000", ""}, {"10001", Start}, {"", Start},
        {" ", Start}, {"x", Start}, {" 7 ", ""},   {"1.5", Start},
    };
    for (const auto& [text, tip] : cases)
    {
        Page.txtStartAtNumeric.SetText(text);
        EXPECT_EQ(Mark(Page.txtStartAtNumeric), tip) << text;
        EXPECT_EQ(Host.Base->IsValid, std::string(tip).empty());
    }
    Page.optAlleleNaming.Item(1).SetValue(true);
    EXPECT_TRUE(Host.Base->Ask());
    EXPECT_EQ(Mark(Page.txtStartAtNumeric), Start);
}

TEST_F(ValidationTest, MarksAllFaultsInOnePassButNoneWhileTheListIsInvalid)
{
    Open(Mode::New);
    Page.txtFragStart.SetText("700");
    bool listIsValid = false;
    Host.Base->Deactivate();
    const int changes = Host.Base->Changes;
    Host.Pane->ValidityChanged(listIsValid);
    EXPECT_EQ(Host.Base->Changes, changes);
    Host.Base->Activate();
    EXPECT_FALSE(Host.Base->Ask());
    EXPECT_EQ(Mark(Page.txtFragStart), "");

    listIsValid = true;
    Host.Pane->ValidityChanged(listIsValid);
    EXPECT_EQ(Host.Base->Changes, changes + 1);
    EXPECT_FALSE(Host.Base->IsValid);
    EXPECT_EQ(Mark(Page.txtLocusTag), Required);
    EXPECT_EQ(Mark(Page.txtFragStart), Range);
    Page.optAlleleNaming.Item(2).SetValue(true);
    Page.txtStartAtNumeric.SetText("0");
    EXPECT_EQ(Mark(Page.txtStartAtNumeric), Start);
}

} // namespace
} // namespace Tamrivo
