#include "tests/editor/editor_test.h"
#include "tests/fakes/locales.h"

namespace Tamrivo
{
namespace
{

using InputRulesTest = EditorTest;
using Form = LocusEditorForm;

TEST_F(InputRulesTest, EachFilterLetsItsKeysThrough)
{
    constexpr const char* digits = "09.\b";
    struct Case
    {
        TextField Form::*Field;
        const char* Passing;
    };
    const Case cases[] = {
        {&Form::txtFragStart, digits},
        {&Form::txtFragEnd, digits},
        {&Form::txtRepeat, digits},
        {&Form::txtRepeatsInShortestAllele, digits},
        {&Form::txtShortestAlleleSize, digits},
        {&Form::txtStutterWidth, digits},
        {&Form::txtRelStutter, digits},
        {&Form::txtMaxSpurHeight, digits},
        {&Form::txtStartAtNumeric, "09\b"},
        {&Form::txtStartAtAlphanumeric, ".AZaz\b"},
        {&Form::txtConfInt, "09.\b"},
    };
    for (const auto& [field, passing] : cases)
    {
        std::string passed;
        for (const char key : std::string("/09:.,@AZ[`az{- \r\x03\x16\b\x7F"))
        {
            std::int16_t code = static_cast<unsigned char>(key);
            (Page.*field).KeyPress(code);
            if (code != 0)
                passed += static_cast<char>(code);
        }
        EXPECT_EQ(passed, passing) << (Page.*field).Name();
        std::int16_t negative = -16;
        (Page.*field).KeyPress(negative);
        EXPECT_EQ(negative, 0);
    }
    Page.txtConfInt.SetText("0.");
    User::Type(Page.txtConfInt, ".5.");
    EXPECT_EQ(Page.txtConfInt.Text(), "0.5");
    User::Type(Page.txtPloidy, "x");
    EXPECT_EQ(Page.txtPloidy.Text(), "2x");
}

struct RepairCase
{
    TextField Form::*Field;
    const char* Before;
    const char* After;
};

TEST_F(InputRulesTest, LeavingAFieldRepairsIt)
{
    const RepairCase cases[] = {
        {&Form::txtFragStart, "", "0"},
        {&Form::txtFragStart, "0.4", "0"},
        {&Form::txtFragStart, "1", "1"},
        {&Form::txtFragEnd, "0.4", "0"},
        {&Form::txtFragStart, "1000", "999"},
        {&Form::txtFragEnd, "x", "0"},
        {&Form::txtFragEnd, "999.5", "999"},
        {&Form::txtFragEnd, "999.4", "999.4"},
        {&Form::txtRepeat, "", "0"},
        {&Form::txtRepeat, "0", "1"},
        {&Form::txtRepeat, "256", "255"},
        {&Form::txtRepeat, "1.5", "1.5"},
        {&Form::txtRepeatsInShortestAllele, "1,5", "0"},
        {&Form::txtRepeatsInShortestAllele, "0", "1"},
        {&Form::txtRepeatsInShortestAllele, "1001", "1000"},
        {&Form::txtStutterWidth, "", "1"},
        {&Form::txtStutterWidth, "0", "1"},
        {&Form::txtStutterWidth, "11", "10"},
        {&Form::txtRelStutter, "", "1"},
        {&Form::txtRelStutter, "0.5", "1"},
        {&Form::txtRelStutter, "101", "100"},
        {&Form::txtMaxSpurHeight, "x", "1"},
        {&Form::txtMaxSpurHeight, "0", "1"},
        {&Form::txtMaxSpurHeight, "1e3", "100"},
        {&Form::txtPloidy, "x", "1"},
        {&Form::txtPloidy, "1", "2"},
        {&Form::txtPloidy, "0", "2"},
        {&Form::txtPloidy, "11", "10"},
        {&Form::txtConfInt, "", "0"},
        {&Form::txtConfInt, ".", "0"},
        {&Form::txtConfInt, "1.5", "1"},
        {&Form::txtConfInt, "-0.1", "0"},
        {&Form::txtConfInt, "0.50", "0.50"},
        {&Form::txtConfInt, "1e3", "1"},
        {&Form::txtStartAtAlphanumeric, "", "A"},
        {&Form::txtStartAtAlphanumeric, " ", " "},
        {&Form::txtStartAtNumeric, "", "1"},
        {&Form::txtStartAtNumeric, "x", "x"},
        {&Form::txtShortestAlleleSize, "59", "60"},
        {&Form::txtShortestAlleleSize, "59.5", "59.5"},
        {&Form::txtShortestAlleleSize, "641", "640"},
        {&Form::txtShortestAlleleSize, "", "60"},
        {&Form::txtShortestAlleleSize, "\xE2\x80\x8F", "60"},
        {&Form::txtShortestAlleleSize, "99999999999", "640"},
    };
    Open(Mode::Edit);
    for (const auto& [field, before, after] : cases)
    {
        TextField& left = Page.*field;
        left.SetText(before);
        left.LostFocus();
        EXPECT_EQ(left.Text(), after) << left.Name() << " \"" << before << '"';
        Page.txtFragStart.SetText("60");
        Page.txtFragEnd.SetText("640");
        Page.txtShortestAlleleSize.SetText("60");
    }
    EXPECT_TRUE(Reports().empty());

    const Fakes::LocaleGuard guard(L',', L'.');
    Page.txtConfInt.SetText("0,5");
    Page.txtConfInt.LostFocus();
    EXPECT_EQ(Page.txtConfInt.Text(), "0,5");
}

TEST_F(InputRulesTest, TheShortestAlleleFollowsTheRange)
{
    Open(Mode::Edit);
    EXPECT_EQ(Page.udShortestAlleleSize.Min(), 60);
    const auto leave = [&](TextField& field, const char* text) {
        const int changes = Host.Base->Changes;
        field.SetText(text);
        field.LostFocus();
        EXPECT_EQ(Host.Base->Changes, changes + 1);
    };
    leave(Page.txtFragStart, "80.4");
    EXPECT_EQ(Page.txtShortestAlleleSize.Text(), "80.4");
    EXPECT_EQ(Page.udShortestAlleleSize.Min(), 80);
    EXPECT_EQ(Page.udShortestAlleleSize.Max(), 640);

    Page.txtShortestAlleleSize.SetText("350");
    leave(Page.txtFragEnd, "200");
    EXPECT_EQ(Page.txtShortestAlleleSize.Text(), "200");
    EXPECT_EQ(Page.udShortestAlleleSize.Max(), 200);

    leave(Page.txtFragStart, "");
    EXPECT_EQ(Page.udShortestAlleleSize.Min(), 0);

    Page.txtFragStart.SetText("300");
    Page.txtShortestAlleleSize.SetText("250");
    Page.txtShortestAlleleSize.LostFocus();
    EXPECT_EQ(Page.txtShortestAlleleSize.Text(), "200");

    Page.txtFragEnd.SetText("x");
    Page.txtShortestAlleleSize.SetText("700");
    Page.txtShortestAlleleSize.LostFocus();
    EXPECT_EQ(Page.txtShortestAlleleSize.Text(), "700");
}

TEST_F(InputRulesTest, WhatDoesNotConvertEndsInTheGuardOfItsHandler)
{
    Open(Mode::Edit);
    const int changes = Host.Base->Changes;
    Page.txtShortestAlleleSize.SetText("");
    Page.txtFragStart.SetText("70");
    Page.txtFragStart.LostFocus();
    EXPECT_EQ(Page.udShortestAlleleSize.Min(), 70);
    EXPECT_EQ(Host.Base->Changes, changes);
    Page.txtPloidy.SetText("99999999999");
    Page.txtPloidy.LostFocus();
    EXPECT_EQ(Page.txtPloidy.Text(), "99999999999");
    EXPECT_EQ(Reports(),
              (Tamrivo::Reports{{"txtFragStart_LostFocus", true}, {"txtPloidy_LostFocus", true}}));
}

} // namespace
} // namespace Tamrivo
