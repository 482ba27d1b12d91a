#include "tests/editor/editor_test.h"

namespace Tamrivo
{
namespace
{

class SaveAsTest : public EditorTest
{
protected:
    void SetUp() override { Open(Mode::Edit); }

    /// Completes the wizard with a tag.
    void NameIt(const std::string& tag)
    {
        Host.Launcher.Run = [this, tag](ParameterCollection& parameters) {
            NewLocus = ParameterItem<std::shared_ptr<Tamrivo::Locus>>(parameters, "SaveLocusAs");
            NewLocus->SetLocusTag(tag);
            return true;
        };
    }
    std::int16_t SaveTimes() const
    {
        return ParameterItem<std::int16_t>(Parameters(), "SaveTimes");
    }

    std::shared_ptr<Tamrivo::Locus> NewLocus;
};

TEST_F(SaveAsTest, AnotherTagMakesTheNewLocusTheOneOfThePage)
{
    const auto source = std::dynamic_pointer_cast<Fakes::FakeLocus>(Host.Pane->Shown);
    AlleleFields& fields = *As<Allele>(source->AlleleList.Item(1));
    fields = {1, 2, 3, 4, 5, "name", "b", "c", 6, 7, 8};
    Page.txtGenBank.SetText("typed");
    NameIt("TPOX 2");
    Page.txtLocusTag.SetVisible(true);
    User::Click(Page.cmdSaveAs);
    EXPECT_FALSE(Page.txtLocusTag.Visible());

    EXPECT_EQ(Host.Launcher.Started,
              std::vector<std::string>{"SaveLocusTagAs - 1 -1 -1 -1 -1 -1 \"\" 0 0"});
    ASSERT_EQ(NewLocus->Alleles().Count(), 1);
    const auto copy = As<Fakes::FakeAllele>(NewLocus->Alleles().Item(1));
    EXPECT_EQ(static_cast<const AlleleFields&>(*copy), fields);
    EXPECT_EQ(copy->Owner.lock(), NewLocus);
    EXPECT_NE(copy, source->AlleleList.Item(1));
    EXPECT_EQ(NewLocus->GenBank, "typed");
    EXPECT_TRUE(NewLocus->IsCurrent());
    EXPECT_EQ(Locus->GenBank, "");
    EXPECT_EQ(Page.txtLocusTag.Text() + "|" + Page.lblLocusTag.Caption(), "TPOX 2|TPOX 2");
    EXPECT_EQ(SaveTimes(), 1);

    Parameters().Add(std::string("old"), "NewSaveAs");
    Host.Base->Save();
    EXPECT_EQ(Host.Objects.Saved, std::vector<const BusinessObject*>{NewLocus.get()});
    EXPECT_EQ(ParameterItem<std::shared_ptr<Tamrivo::Locus>>(Parameters(), "NewSaveAs"), NewLocus);

    NameIt("vWA ");
    User::Click(Page.cmdSaveAs);
    Host.Base->Save();
    EXPECT_EQ(SaveTimes(), 2);
    EXPECT_FALSE(Parameters().KeyExists("NewSaveAs"));
    EXPECT_TRUE(Reports().empty());
}

TEST_F(SaveAsTest, TheSameTagSavesThePresentLocus)
{
    Page.txtGenBank.SetText("typed");
    NameIt("tpox");
    Page.txtLocusTag.SetVisible(true);
    User::Click(Page.cmdSaveAs);
    EXPECT_EQ(Host.Objects.Saved, std::vector<const BusinessObject*>{Locus.get()});
    EXPECT_EQ(Locus->Tag + Locus->GenBank, "TPOXtyped");
    EXPECT_FALSE(Parameters().KeyExists("SaveTimes"));
    EXPECT_FALSE(Page.txtLocusTag.Visible());
}

TEST_F(SaveAsTest, TheSameTagAfterAnotherIsNoNewLocusAnyMore)
{
    NameIt("Fresh");
    User::Click(Page.cmdSaveAs);
    NameIt("FRESH");
    User::Click(Page.cmdSaveAs);
    Host.Base->Save();
    EXPECT_FALSE(Parameters().KeyExists("NewSaveAs"));
    EXPECT_EQ(SaveTimes(), 1);
}

TEST_F(SaveAsTest, TheCountOfNewTagsEndsWhereItsTypeDoes)
{
    NameIt("Fresh");
    Parameters().Add(std::int16_t{32766}, "SaveTimes");
    User::Click(Page.cmdSaveAs);
    EXPECT_EQ(SaveTimes(), 32767);
    EXPECT_TRUE(Reports().empty());

    NameIt("Fresher");
    User::Click(Page.cmdSaveAs);
    EXPECT_EQ(Reports(), (Tamrivo::Reports{{"cmdSaveAs_Click", true}}));
    EXPECT_EQ(Reports()[0].Error.Number, ErrorNumber::OutOfRange);
    EXPECT_EQ(SaveTimes(), 32767);
    EXPECT_EQ(Page.txtLocusTag.Text() + "|" + Page.lblLocusTag.Caption(), "Fresher|Fresh");
}

TEST_F(SaveAsTest, ACancelledWizardLeavesTheLocusAlone)
{
    Page.txtGenBank.SetText("typed");
    User::Click(Page.cmdSaveAs);
    const auto first = ParameterItem<std::shared_ptr<Tamrivo::Locus>>(Parameters(), "SaveLocusAs");
    User::Click(Page.cmdSaveAs);
    EXPECT_NE(ParameterItem<std::shared_ptr<Tamrivo::Locus>>(Parameters(), "SaveLocusAs"), first);
    EXPECT_EQ(Locus->GenBank, "");
    EXPECT_EQ(Host.Pane->Shown->GenBank, "typed");
    EXPECT_TRUE(Host.Objects.Saved.empty());
}

TEST_F(SaveAsTest, AFailureStartsNoWizard)
{
    User::Click(Page.cmdSaveAs);
    Page.txtRepeat.SetText("");
    User::Click(Page.cmdSaveAs);
    EXPECT_EQ(Host.Launcher.Started.size(), 1U);
    EXPECT_FALSE(Parameters().KeyExists("SaveLocusAs"));
    EXPECT_EQ(Reports(), (Tamrivo::Reports{{"UpdateLocus", false}, {"cmdSaveAs_Click", true}}));

    Reports().clear();
    Page.txtRepeat.SetText("4");
    Host.Objects.Before = [](const std::string& request) {
        if (request != "Create Locus")
            throw Failure(1, "store", "full");
    };
    User::Click(Page.cmdSaveAs);
    NameIt("TPOX");
    static_cast<Fakes::FakeLocus&>(*Host.Pane->Shown).AlleleList.Objects.clear();
    User::Click(Page.cmdSaveAs);
    EXPECT_EQ(Reports(), (Tamrivo::Reports{{"cmdSaveAs_Click", true},
                                           {"m_oPageBase_Save", false},
                                           {"cmdSaveAs_Click", true}}));
}

} // namespace
} // namespace Tamrivo
