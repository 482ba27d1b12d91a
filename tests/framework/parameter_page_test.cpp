#include "host/framework/host_application.h"
#include "host/framework/parameter_page.h"
#include "tests/store/store_fixture.h"

namespace Tamrivo::Testing
{
namespace
{

struct NoOne : FrontEnd
{
    void RunWizard(WizardSession&) override {}
    void ShowMenu(UserControl&, Menu&) override {}
    MessageAnswer ShowMessage(const std::string&, std::int32_t, const std::string& title) override
    {
        Shown.push_back(title);
        return MessageAnswer::Ok;
    }
    void ShowReport(const FailureReport&) override {}
    void ShowFailure(const ErrorRecord&) override {}

    std::vector<std::string> Shown;
};

/// Loads entries until its store is lost.
struct LossyHost : HostApplication
{
    using HostApplication::HostApplication;

    struct LostEntry : LocusTagEntry
    {
        std::int32_t TagID(std::int32_t) const override { return 0; }
        void SetTagName(const std::string&) override {}
        std::int32_t Load() override { return LoadResult::NoConnection; }
    };

    std::shared_ptr<LocusTagEntry> NewLocusTagEntry() override
    {
        return EntriesLeft-- > 0 ? HostApplication::NewLocusTagEntry()
                                 : std::make_shared<LostEntry>();
    }

    int EntriesLeft = 1000;
};

using ParameterPageTest = StoreTest;

TEST_F(ParameterPageTest, AStoreThatIsLostWhileSavingCutsNoSelectionShort)
{
    Store store(Address());
    for (const char* tag : {"A", "B", "C"})
        Save(store, tag);
    NoOne frontEnd;
    LossyHost host(store, frontEnd);
    host.Parameters().Create("Mine", TagLists::OneEmpty);
    const auto selected = [&](const char* name) {
        return ParameterPage(host, host.Parameters().Open(name))
            .Selector()
            .NumberOfSelectedLocusTags();
    };
    ParameterPage page(host, host.Parameters().Open("Mine"));
    page.Selector().cmdAddAll.Click();
    EXPECT_TRUE(page.IsChanged());
    page.Save();
    EXPECT_FALSE(page.IsChanged());
    EXPECT_EQ(selected("Mine"), 3);

    host.EntriesLeft = 1;
    EXPECT_EQ(FailureOf([&] { page.Save(); }).Number, ErrorNumber::Unexpected);
    EXPECT_EQ(frontEnd.Shown, std::vector<std::string>{"Internal DB Error"});
    host.EntriesLeft = 1000;
    EXPECT_EQ(selected("Mine"), 3);

    store.DeleteLocus("B");
    page.Save();
    EXPECT_EQ(frontEnd.Shown.back(), "Locus Tag Does Not Exist");
    EXPECT_EQ(selected("Mine"), 2);
}

} // namespace
} // namespace Tamrivo::Testing
