#include "examples/embed/memory_host.h"
#include "tests/component/component_test.h"

namespace Tamrivo
{

namespace
{

/// Keeps all that passes through its hands.
class HoardingHost : public EmbeddingHost
{
public:
    std::shared_ptr<Gridocx> NewGrid() override
    {
        return Grids.emplace_back(EmbeddingHost::NewGrid());
    }
    std::shared_ptr<ServiceBase> NewServiceBase() override
    {
        return Service = EmbeddingHost::NewServiceBase();
    }

    std::vector<std::shared_ptr<Gridocx>> Grids;
    std::shared_ptr<ServiceBase> Service;
};

class Unloading : public ComponentTest
{
protected:
    Unloading()
    {
        Stored = Hoard.Objects.AddCurrentLocus("TPOX");
        Stored->Id = Stored->TagId = 1;
        Stored->Modified = std::chrono::sys_days(std::chrono::days(1));
        Hoard.Objects.AddProject("Default", 1);
    }

    HoardingHost Hoard;
    std::shared_ptr<Fakes::FakeLocus> Stored;
};

TEST_F(Unloading, LeavesTheObjectsOfAPageToTheHost)
{
    int heard = 0;
    const Connection own = Stored->IsCurrentChanged.Connect([&heard] { ++heard; });
    const auto toggle = [&] { Stored->SetIsCurrent(!Stored->IsCurrent()); };
    for (const char* name : {"Tamrivo.LocusEditorPage", "Tamrivo.SaveAsLocusPage"})
    {
        Held<IUnknown> page;
        ASSERT_EQ(CreateFor(Hoard, name, IID_IUnknown, page.Out()), S_OK);
        Hoard.Base->Collection = std::make_shared<ParameterCollection>();
        for (const char* key : {ParameterKey::Locus, ParameterKey::SaveLocusAs})
            Hoard.Base->Collection->Add(std::shared_ptr<Locus>(Stored), key);
        Hoard.Base->Initialize(nullptr);
        Hoard.Base->Ask();
        toggle();
    }
    EXPECT_EQ(heard, 2) << "a page took the host's own handler away";
    EXPECT_TRUE(Hoard.Utility.Reports.empty()) << Hoard.Utility.Reports.front();

    Unload();
    toggle();
    EXPECT_EQ(heard, 3);
    Hoard.Base->PageChanged();
    Hoard.Base->Save();
    Hoard.Pane->ListChanged();
    EXPECT_TRUE(Hoard.Objects.Saved.empty());
}

TEST_F(Unloading, LeavesTheObjectsOfTheSelectorToTheHost)
{
    Held<IUnknown> created;
    ASSERT_EQ(CreateFor(Hoard, "Tamrivo.STRLocusTagSelector", IID_IUnknown, created.Out()), S_OK);
    Collection<std::shared_ptr<Locus>> selected;
    std::shared_ptr<ObjectList> all;
    {
        const Access<ILocusTagSelector> selector(*created.Pointer);
        const Access<User::FormUser> user(*created.Pointer);
        selector->Initialize(std::make_shared<Embed::MemoryParameter>());
        user->Click("cmdAddAll");
        user->Click("cmdNewSTRLocus");
        selected = selector->SelectedLocusTags();
        all = selector->AllLocusTags();
    }
    created.Drop();

    Unload();
    const Keyed& parameters = *Hoard.Launcher.Given;
    EXPECT_TRUE(parameters.KeyExists(ParameterKey::Locus));
    EXPECT_FALSE(static_cast<const Keyed&>(selected).KeyExists("TPOX"));
    EXPECT_EQ(*selected.begin(), Stored);
    EXPECT_TRUE(all->KeyExists("TPOX"));
    GridEventResult result;
    for (const auto& grid : Hoard.Grids)
    {
        grid->GotFocus();
        grid->SelectionChanged(nullptr, 0, 0);
        grid->CellClicked(1, 1, 0, nullptr, nullptr);
        grid->CellDoubleClicked(1, 1, 0, nullptr, result);
    }
    EXPECT_EQ(result.Value, 0);
}

TEST_F(Unloading, LeavesTheServiceBaseToTheHost)
{
    Held<IUnknown> service;
    ASSERT_EQ(CreateFor(Hoard, "Tamrivo.Service", IID_IUnknown, service.Out()), S_OK);
    ReportContexts contexts;
    Hoard.Service->GetReportContexts(0, contexts);
    service.Drop();

    Unload();
    Hoard.Service->GetReportContexts(0, contexts);
    EXPECT_EQ(contexts.Entries().size(), 1U);
}

} // namespace

} // namespace Tamrivo
