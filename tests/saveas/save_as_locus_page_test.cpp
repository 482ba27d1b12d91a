#include "controls/user.h"
#include "saveas/save_as_locus_page.h"
#include "tests/fakes/fake_host.h"
#include "tests/fakes/form_text.h"

#include <gtest/gtest.h>

namespace Tamrivo
{

namespace
{

class SaveAsTest : public testing::Test
{
protected:
    SaveAsTest()
    {
        SaveLocus->Tag = "Origin";
        Host.Base->Collection->Add(std::shared_ptr<Locus>(SaveLocus), ParameterKey::SaveLocusAs);
        for (const char* tag : {"TPOX", "FGA  ", "fes"})
            Host.Objects.AddCurrentLocus(tag);
    }

    void Open() { Host.Base->Initialize(nullptr); }
    bool IsValidWith(const std::string& text)
    {
        User::Paste(Page.txtLocusName, text);
        return Host.Base->IsValid;
    }
    void FailAt(const std::string& failing)
    {
        Host.Objects.Before = [failing](const std::string& request) {
            if (request == failing)
                throw Failure(7, "store", "gone");
        };
    }
    using Reports = std::vector<Fakes::Report>;

    Fakes::FakeHost Host;
    std::shared_ptr<Fakes::FakeLocus> SaveLocus = std::make_shared<Fakes::FakeLocus>();
    SaveAsLocusPage Page{Host};
};

TEST_F(SaveAsTest, OpensOnTheExistingTagsWithNothingTyped)
{
    Host.Base->Collection->Add(std::string("old"), ParameterKey::LocusName);
    EXPECT_EQ(Page.txtLocusName.Text(), "Locus Name");
    EXPECT_EQ(Page.Page(), Host.Base);
    Open();
    std::vector<std::string> entries;
    entries.reserve(3);
    for (std::int32_t i = 0; i < Page.lstLocusNameList.ListCount(); ++i)
        entries.push_back(Page.lstLocusNameList.List(i));
    EXPECT_EQ(entries, (std::vector<std::string>{"fes", "FGA", "TPOX"}));
    EXPECT_EQ(Page.txtLocusName.Text(), "");
    EXPECT_FALSE(Host.Base->IsValid);
    EXPECT_EQ(Host.Base->Changes, 1);
    EXPECT_EQ(Host.Base->Collection->Keys(), (std::vector<std::string>{ParameterKey::SaveLocusAs}));
    EXPECT_EQ(Host.Utility.Reports, Reports{});
}

TEST_F(SaveAsTest, IsValidForATagThatIsNew)
{
    Open();
    const std::pair<const char*, bool> cases[] = {
        {"", false},     {"   ", false},  {"tpox", false}, {"FGA", false},
        {"FGA ", false}, {"TPOX1", true}, {" TPOX", true}, {"Origin", true},
    };
    for (const auto& [text, isValid] : cases)
        EXPECT_EQ(IsValidWith(text), isValid) << text;

    User::Choose(Page.lstLocusNameList, "TPOX");
    EXPECT_EQ(Page.txtLocusName.Text(), "TPOX");
    EXPECT_FALSE(Host.Base->IsValid);
}

TEST_F(SaveAsTest, StoresUnderAnotherTagAndAsksAboutTheSame)
{
    struct Case
    {
        const char* Typed;
        MessageAnswer Answer;
        const char* Tag;
        std::size_t Stored;
        std::size_t Asked;
    };
    const Case cases[] = {
        {"New ", MessageAnswer::Ok, "New ", 1, 0},
        {"Origin ", MessageAnswer::Ok, "Origin ", 1, 0},
        {"ORIGIN", MessageAnswer::No, "Origin", 0, 1},
        {"ORIGIN", MessageAnswer::Yes, "ORIGIN", 0, 1},
    };
    Open();
    for (const Case& c : cases)
    {
        SaveLocus->Tag = "Origin";
        Host.Objects.Saved.clear();
        Host.Messages.clear();
        Host.Answer = c.Answer;
        User::Paste(Page.txtLocusName, c.Typed);
        Host.Base->Save();
        EXPECT_EQ(SaveLocus->Tag, c.Tag) << c.Typed;
        EXPECT_EQ(Host.Objects.Saved,
                  std::vector<const BusinessObject*>(c.Stored, SaveLocus.get()));
        if (c.Stored > 0)
        {
            EXPECT_EQ(Host.Objects.Requests.back(), "Save " + std::string(c.Tag) + " true");
        }
        EXPECT_EQ(
            Host.Messages,
            std::vector<std::string>(
                c.Asked, "Save Over Existing Locus|Do you want to save over existing Locus?|52"));
    }
}

TEST_F(SaveAsTest, ReportsAFailingStoreAndEndsNormally)
{
    Open();
    User::Paste(Page.txtLocusName, "New");
    FailAt("Save New");
    Host.Base->Save();
    EXPECT_EQ(Host.Utility.Reports, (Reports{{"m_oPageBase_Save", true}}));
    EXPECT_EQ(SaveLocus->Tag, "New");
}

struct Nameless : BusinessObject
{
    std::string Name() const override { throw Failure(7, "store", "gone"); }
};

TEST_F(SaveAsTest, DeclaresEachControlAsItIsShown)
{
    EXPECT_EQ(Fakes::FormText(Page), Fakes::FormFile("save_as"));
}

TEST_F(SaveAsTest, EachGuardTellsItsNameAndForm)
{
    const auto guards = [&](auto act) { return Host.Utility.GuardsOf(act); };
    FailAt("Query CurrentLoci Name");
    EXPECT_EQ(guards([&] { Open(); }), "m_oPageBase_Initialize reporting");
    EXPECT_EQ(guards([&] { Host.Base->PageChanged(); }), "m_oPageBase_Validate propagating");
    EXPECT_EQ(guards([&] { Page.txtLocusName.SetText("x"); }),
              "m_oPageBase_Validate propagating, txtLocusName_Change reporting");
    EXPECT_EQ(guards([&] { Host.Base->Save(); }), "m_oPageBase_Save reporting");
    Host.Objects.Before = [](const std::string&) {};
    Host.Objects.Lists["CurrentLoci"].Objects[2] = std::make_shared<Nameless>();
    EXPECT_EQ(guards([&] { Open(); }), "LoadLocusNameList reporting");
    const Connection observer = Page.ControlChanged.Connect([](Control& control) {
        if (control.Name() == "txtLocusName")
            throw Failure(1, "test", "no drawing");
    });
    EXPECT_EQ(guards([&] { User::Choose(Page.lstLocusNameList, "TPOX"); }),
              "lstLocusNameList_Click reporting");
    struct Baseless : Fakes::FakeHost
    {
        std::shared_ptr<PageBase> NewPageBase() override { throw Failure(1, "host", "none"); }
    } baseless;
    EXPECT_EQ(baseless.Utility.GuardsOf([&] { SaveAsLocusPage page(baseless); }),
              "UserControl_Initialize terminal");
    EXPECT_EQ(Host.Utility.Headings, (std::set<std::string>{"Tamrivo|SaveAsLocusPage|"}));
}

TEST_F(SaveAsTest, GoesOnWithTheTagsReadSoFar)
{
    Host.Objects.Lists["CurrentLoci"].Objects[2] = std::make_shared<Nameless>();
    Open();
    EXPECT_EQ(Page.lstLocusNameList.ListCount(), 2);
    EXPECT_EQ(Page.txtLocusName.Text(), "");
    EXPECT_EQ(Host.Utility.Reports.front(), (Fakes::Report{"LoadLocusNameList", true}));
}

TEST_F(SaveAsTest, WithoutTheLociNothingCanBeValidated)
{
    FailAt("Query CurrentLoci Name");
    Open();
    EXPECT_EQ(Host.Utility.Reports, (Reports{{"m_oPageBase_Initialize", true}}));
    Host.Utility.Reports.clear();

    bool isValid = false;
    EXPECT_THROW(Host.Base->Validate(isValid), Failure);
    EXPECT_TRUE(isValid);
    User::Paste(Page.txtLocusName, "New");
    EXPECT_EQ(Host.Utility.Reports, (Reports{{"m_oPageBase_Validate", false},
                                             {"m_oPageBase_Validate", false},
                                             {"txtLocusName_Change", true}}));
}

} // namespace

} // namespace Tamrivo
