#include "tests/editor/editor_test.h"
#include "tests/fakes/locales.h"

namespace Tamrivo
{
namespace
{

using BindingTest = EditorTest;

/// Every value differs from what a new locus or the form has.
LocusFields UnusualFields()
{
    LocusFields fields;
    fields.LocusName = "Thyroid peroxidase";
    fields.ProjectID = 7;
    fields.ProjectName = "First";
    fields.DyeIndex = 2;
    fields.FragStart = 213;
    fields.FragEnd = 271;
    fields.RepeatLength = 5;
    fields.RepeatUnitSequence = "AATG";
    fields.ShortestAlleleSize = 222;
    fields.RepeatsInShortestAllele = "6";
    fields.AlleleNamingConventionTypeID = AlleleNamingConvention::Numeric;
    fields.StartAtAlphanumeric = "F";
    fields.StartAtNumeric = 5;
    fields.PrimerSet = "Set 1";
    fields.GenBank = "M68651";
    fields.PrimerLabelTypeID = PrimerLabel::Reverse;
    fields.FwdPrimer = "ACTGG";
    fields.RevPrimer = "CCATT";
    fields.ConfInt = 0.25;
    fields.SystemConfInt = 0.75;
    fields.UserSpecifiedConfInt = 1;
    fields.SearchForStutter = true;
    fields.DetShortStutter = false;
    fields.DetLongStutter = true;
    fields.StutterWidth = 3;
    fields.RelStutter = 20;
    fields.ApparentSizeIncludesA = true;
    fields.DetectA = true;
    fields.UseA = true;
    fields.DetectSpuriousPeaks = true;
    fields.MaxSpurHeight = 12;
    fields.Ploidy = 4;
    return fields;
}

TEST_F(BindingTest, AStoredLocusComesBackAsItWas)
{
    for (const bool decimalComma : {false, true})
    {
        const Fakes::LocaleGuard guard(decimalComma ? L',' : L'.', decimalComma ? L'.' : L',');
        static_cast<LocusFields&>(*Locus) = UnusualFields();
        Locus->Modified = Date::value_type(std::chrono::seconds(1700000000));
        Locus->Current = false;
        Open(Mode::Edit);
        EXPECT_EQ(Page.lblConfInt.Caption(), decimalComma ? "0,75" : "0.75");
        EXPECT_EQ(Page.lblDateLastModified.Caption(), DateText(Locus->Modified));
        Host.Base->Save();
        EXPECT_EQ(static_cast<const LocusFields&>(*Locus), UnusualFields());
        EXPECT_EQ(Locus->Tag, "TPOX");
        EXPECT_TRUE(Locus->Current);
    }
    EXPECT_TRUE(Reports().empty());
}

TEST_F(BindingTest, EveryPropertyIsShownByItsField)
{
    static_cast<LocusFields&>(*Locus) = UnusualFields();
    Open(Mode::Edit);
    const std::pair<const TextField*, const char*> texts[] = {
        {&Page.txtLocusTag, "TPOX"},
        {&Page.txtLocusName, "Thyroid peroxidase"},
        {&Page.txtConfInt, "0.25"},
        {&Page.txtFragStart, "213"},
        {&Page.txtFragEnd, "271"},
        {&Page.txtRepeatUnitSequence, "AATG"},
        {&Page.txtRepeat, "5"},
        {&Page.txtShortestAlleleSize, "222"},
        {&Page.txtRepeatsInShortestAllele, "6"},
        {&Page.txtStartAtAlphanumeric, "F"},
        {&Page.txtStartAtNumeric, "5"},
        {&Page.txtPrimerSet, "Set 1"},
        {&Page.txtGenBank, "M68651"},
        {&Page.txtFwd, "ACTGG"},
        {&Page.txtRev, "CCATT"},
        {&Page.txtStutterWidth, "3"},
        {&Page.txtRelStutter, "20"},
        {&Page.txtMaxSpurHeight, "12"},
        {&Page.txtPloidy, "4"},
    };
    for (const auto& [field, text] : texts)
        EXPECT_EQ(field->Text(), text) << field->Name();
    EXPECT_EQ(Page.cmbDye.Text(), "D3");
    EXPECT_TRUE(Page.optAlleleNaming.Item(2).Value());
    EXPECT_TRUE(Page.optPrimerLabel.Item(1).Value());
    EXPECT_EQ(Page.chkDetShortStutter.Value(), 0);
    EXPECT_EQ(Page.chkDetLongStutter.Value(), 1);
}

TEST_F(BindingTest, EachBoxStandsForItsOwnProperty)
{
    struct Row
    {
        CheckBox LocusEditorForm::*Box;
        bool LocusFields::*Property;
    };
    const Row rows[] = {
        {&LocusEditorForm::chkSearchForStutter, &LocusFields::SearchForStutter},
        {&LocusEditorForm::chkDetShortStutter, &LocusFields::DetShortStutter},
        {&LocusEditorForm::chkDetLongStutter, &LocusFields::DetLongStutter},
        {&LocusEditorForm::chkApparentSizeIncludesA, &LocusFields::ApparentSizeIncludesA},
        {&LocusEditorForm::chkDetectA, &LocusFields::DetectA},
        {&LocusEditorForm::chkUseA, &LocusFields::UseA},
        {&LocusEditorForm::chkDetectSpuriousPeaks, &LocusFields::DetectSpuriousPeaks},
    };
    for (const Row& alone : rows)
    {
        for (const Row& row : rows)
            (*Locus).*row.Property = &row == &alone;
        Open(Mode::New);
        std::string shown;
        std::string stored;
        std::string expected;
        for (const Row& row : rows)
        {
            shown += std::to_string((Page.*row.Box).Value());
            expected += &row == &alone ? "1" : "0";
        }
        EXPECT_EQ(shown, expected);
        SetMode(Mode::Edit);
        OpenAgain();
        for (const Row& row : rows)
            (*Locus).*row.Property = &row != &alone;
        Host.Base->Save();
        for (const Row& row : rows)
            stored += (*Locus).*row.Property ? "1" : "0";
        EXPECT_EQ(stored, expected);
    }
}

TEST_F(BindingTest, ANewLocusShowsItsOwnDefaults)
{
    static_cast<LocusFields&>(*Locus) = UnusualFields();
    Locus->RepeatUnitSequence = " AATG ";
    Open(Mode::New);
    EXPECT_EQ(Page.txtRepeatUnitSequence.Text(), " AATG ");
    EXPECT_EQ(Page.txtStartAtAlphanumeric.Text() + Page.txtStartAtNumeric.Text(), "A1");
    EXPECT_TRUE(Page.optAlleleNaming.Item(0).Value());
    EXPECT_TRUE(Page.optPrimerLabel.Item(2).Value());
    EXPECT_EQ(Page.lblDateLastModified.Caption(), "");
    EXPECT_EQ(Locus->SystemConfInt, 0);
    Locus->SystemConfInt = 0.95;
    Host.Base->Save();
    EXPECT_EQ(Locus->SystemConfInt, 0.75);
}

TEST_F(BindingTest, LoadingTrimsAndCompletes)
{
    SetMode(Mode::Edit);
    Locus->Tag = " TPOX  ";
    Locus->LocusName = " name ";
    Locus->GenBank = " M6 ";
    Locus->StartAtAlphanumeric = "";
    Locus->StartAtNumeric = 0;
    Locus->PrimerLabelTypeID = 1;
    Locus->SystemConfInt = 0.95;
    Parameters().Add(std::static_pointer_cast<Tamrivo::Locus>(Locus), "Locus");
    Initialize();
    EXPECT_EQ(Page.txtLocusTag.Text() + "|" + Page.lblLocusTag.Caption(), " TPOX| TPOX");
    EXPECT_EQ(Page.txtLocusName.Text() + Page.txtGenBank.Text(), " nameM6");
    EXPECT_EQ(Locus->StartAtAlphanumeric + Page.txtStartAtAlphanumeric.Text(), "AA");
    EXPECT_EQ(Page.txtStartAtNumeric.Text(), "1");
    EXPECT_EQ(Locus->StartAtNumeric, 0);

    const std::pair<TextField*, std::string LocusFields::*> typed[] = {
        {&Page.txtLocusName, &LocusFields::LocusName},
        {&Page.txtRepeatUnitSequence, &LocusFields::RepeatUnitSequence},
        {&Page.txtRepeatsInShortestAllele, &LocusFields::RepeatsInShortestAllele},
        {&Page.txtPrimerSet, &LocusFields::PrimerSet},
        {&Page.txtGenBank, &LocusFields::GenBank},
        {&Page.txtFwd, &LocusFields::FwdPrimer},
        {&Page.txtRev, &LocusFields::RevPrimer},
    };
    for (const auto& [field, property] : typed)
        field->SetText(" typed ");
    Page.txtLocusTag.SetText(" TPOX ");
    Page.txtConfInt.SetText("");
    Page.txtStartAtNumeric.SetText("anything");
    Locus->ConfInt = 0.125;
    Host.Base->Save();
    for (const auto& [field, property] : typed)
        EXPECT_EQ((*Locus).*property, " typed ") << field->Name();
    EXPECT_EQ(Locus->Tag, " TPOX ");
    EXPECT_EQ(Locus->PrimerLabelTypeID, PrimerLabel::None);
    EXPECT_EQ(Locus->SystemConfInt, static_cast<double>(0.95F));
    EXPECT_EQ(Locus->ConfInt, 0.125);
}

TEST_F(BindingTest, AnUnknownConventionIsToldTwiceAndStopsTheLoading)
{
    static_cast<LocusFields&>(*Locus) = UnusualFields();
    Locus->AlleleNamingConventionTypeID = 999;
    Locus->GenBank = " untrimmed ";
    EXPECT_EQ(FailureOf([&] { Open(Mode::Edit); }), ErrorNumber::Application);
    EXPECT_EQ(Reports(),
              (Tamrivo::Reports{{"LoadLocusData", false}, {"m_oPageBase_Initialize", false}}));
    EXPECT_EQ(Reports()[1].Error, (ErrorRecord{-2147221504, "Select AlleleNamingConventionTypeID",
                                               "Invalid ID: 999", "", 0}));
    EXPECT_EQ(Page.txtGenBank.Text(), " untrimmed ");
}

TEST_F(BindingTest, AfterADebugStopOnlyTheFailingStepRunsAgain)
{
    Locus->AlleleNamingConventionTypeID = 999;
    Locus->PrimerSet = " set ";
    Host.Utility.OnDebugBreak = [&] {
        Page.txtFragStart.SetText("not loaded again");
        Locus->AlleleNamingConventionTypeID = AlleleNamingConvention::Numeric;
        return true;
    };
    Open(Mode::Edit);
    EXPECT_EQ(Reports(), (Tamrivo::Reports{{"LoadLocusData", false}}));
    EXPECT_TRUE(Page.optAlleleNaming.Item(2).Value());
    EXPECT_EQ(Page.txtFragStart.Text(), "not loaded again");
    EXPECT_EQ(Page.txtPrimerSet.Text(), "set");
}

TEST_F(BindingTest, WhatTheLocusHasAndThePageCantHoldIsAClearFailure)
{
    Locus->DyeIndex = 4;
    EXPECT_EQ(FailureOf([&] { Open(Mode::Edit); }), ErrorNumber::InvalidArgument);
    Locus->DyeIndex = 0;
    for (const double interval : {1e39, -1e39})
    {
        Locus->SystemConfInt = interval;
        EXPECT_EQ(FailureOf([&] { OpenAgain(); }), ErrorNumber::OutOfRange);
    }
    const Tamrivo::Reports each{{"LoadDefaults", false}, {"m_oPageBase_Initialize", false}};
    EXPECT_EQ(Reports(), (Tamrivo::Reports{each[0], each[1], each[0], each[1], each[0], each[1]}));
}

TEST_F(BindingTest, AFieldThatDoesNotConvertStopsTheStoringThere)
{
    struct Row
    {
        TextField LocusEditorForm::*Field;
        std::int32_t LocusFields::*Property;
    };
    const Row rows[] = {
        {&LocusEditorForm::txtFragStart, &LocusFields::FragStart},
        {&LocusEditorForm::txtFragEnd, &LocusFields::FragEnd},
        {&LocusEditorForm::txtRepeat, &LocusFields::RepeatLength},
        {&LocusEditorForm::txtShortestAlleleSize, &LocusFields::ShortestAlleleSize},
        {&LocusEditorForm::txtStartAtNumeric, &LocusFields::StartAtNumeric},
        {&LocusEditorForm::txtPloidy, &LocusFields::Ploidy},
        {&LocusEditorForm::txtStutterWidth, &LocusFields::StutterWidth},
        {&LocusEditorForm::txtRelStutter, &LocusFields::RelStutter},
        {&LocusEditorForm::txtMaxSpurHeight, &LocusFields::MaxSpurHeight},
    };
    for (const Row& failing : rows)
    {
        Open(Mode::Edit);
        Page.optAlleleNaming.Item(2).SetValue(true);
        Locus->Current = false;
        for (const Row& row : rows)
        {
            (*Locus).*row.Property = -1;
            (Page.*row.Field).SetText(&row == &failing ? "x" : "77");
        }
        EXPECT_EQ(FailureOf([&] { Host.Base->Save(); }), ErrorNumber::NotANumber);
        for (const Row& row : rows)
            EXPECT_EQ((*Locus).*row.Property, &row < &failing ? 77 : -1);
        EXPECT_FALSE(Locus->Current);
        static_cast<LocusFields&>(*Locus) = LocusFields();
    }
}

} // namespace
} // namespace Tamrivo
