#include "examples/embed/memory_host.h"
#include "tests/component/component_test.h"

namespace Tamrivo
{

namespace
{

/// Gives null for one kind of object, or raises.
class Giver
{
public:
    std::string Withheld;
    bool Raises = false;

    template <class T>
    std::shared_ptr<T> Give(const std::string& what, std::shared_ptr<T> object) const
    {
        if (what != Withheld)
            return object;
        if (Raises)
            throw Failure(7, "host", "no " + what);
        return nullptr;
    }
};

class GivenGrid : public Embed::MemoryGrid
{
public:
    explicit GivenGrid(const Giver& giver) : m_giver(giver) {}
    std::shared_ptr<GridRange> CreateRange() override
    {
        return m_giver.Give("CreateRange", MemoryGrid::CreateRange());
    }
    std::shared_ptr<GridStyle> CreateStyle() override
    {
        return m_giver.Give("CreateStyle", MemoryGrid::CreateStyle());
    }
    std::shared_ptr<GridSortInfo> CreateSortInfo() override
    {
        return m_giver.Give("CreateSortInfo", MemoryGrid::CreateSortInfo());
    }
    std::shared_ptr<GridParam> Param() override
    {
        return m_giver.Give("Param", MemoryGrid::Param());
    }

private:
    const Giver& m_giver;
};

class GivenLocus : public Fakes::FakeLocus
{
public:
    explicit GivenLocus(const Giver& giver) : m_giver(giver) { Id = TagId = 1; }
    std::shared_ptr<Locus> Clone() override { return m_giver.Give("Clone", FakeLocus::Clone()); }

private:
    const Giver& m_giver;
};

std::shared_ptr<Locus> MakeLocus(const Giver& giver)
{
    const auto locus = std::make_shared<GivenLocus>(giver);
    locus->Tag = "TPOX";
    locus->AddAllele("7");
    return locus;
}

class GivenManager : public Fakes::FakeObjectManager
{
public:
    explicit GivenManager(const Giver& giver) : m_giver(giver) {}
    std::shared_ptr<BusinessObject> Create(std::string_view key) override
    {
        return m_giver.Give("Create " + std::string(key), FakeObjectManager::Create(key));
    }
    std::shared_ptr<ObjectList> Query(std::string_view name, std::string_view a, std::string_view b,
                                      std::string_view c, std::int32_t d, bool e) override
    {
        auto list = FakeObjectManager::Query(name, a, b, c, d, e);
        if (name == "Projects")
            list->Add(std::make_shared<Fakes::FakeProject>("Default", 1));
        else
            list->Add(m_giver.Give<BusinessObject>("member", MakeLocus(m_giver)));
        return m_giver.Give("Query " + std::string(name), list);
    }

private:
    const Giver& m_giver;
};

class GivenLauncher : public Fakes::FakeLauncher
{
public:
    explicit GivenLauncher(const Giver& giver) : m_giver(giver)
    {
        Run = [this](ParameterCollection& parameters) {
            parameters.Add(m_giver.Give("NewSaveAs", MakeLocus(m_giver)), ParameterKey::NewSaveAs);
            return true;
        };
    }

private:
    std::shared_ptr<LauncherResult> Result(bool cancelled) override
    {
        return m_giver.Give("Start", FakeLauncher::Result(cancelled));
    }

    const Giver& m_giver;
};

class NamedContextType : public ReportContextType
{
    void Define(std::int32_t, const std::string&, double, IServiceAccess&) override {}
};

class LoadedEntry : public LocusTagEntry
{
    std::int32_t TagID(std::int32_t) const override { return 1; }
    void SetTagName(const std::string&) override {}
    std::int32_t Load() override { return LoadResult::Loaded; }
};

/// A host that has everything but what is withheld.
class WithholdingHost : public EmbeddingHost, public Giver
{
public:
    Tamrivo::Launcher& SharedLauncher() override { return m_launcher; }
    ObjectManager& Manager() override { return *m_manager; }
    std::shared_ptr<ObjectManager> NewObjectManager() override
    {
        return Give<ObjectManager>("NewObjectManager", m_manager);
    }
    std::shared_ptr<PageBase> NewPageBase() override { return Give<PageBase>("NewPageBase", Base); }
    std::shared_ptr<ServiceBase> NewServiceBase() override
    {
        return Give("NewServiceBase", Service);
    }
    std::shared_ptr<ReportContextType> NewReportContextType() override
    {
        return Give<ReportContextType>("NewReportContextType",
                                       std::make_shared<NamedContextType>());
    }
    std::shared_ptr<LocusTagEntry> NewLocusTagEntry() override
    {
        return Give<LocusTagEntry>("NewLocusTagEntry", std::make_shared<LoadedEntry>());
    }
    std::shared_ptr<PaneAlleleList> NewPaneAlleleList() override
    {
        return Give<PaneAlleleList>("NewPaneAlleleList", Pane);
    }
    std::shared_ptr<Gridocx> NewGrid() override
    {
        return Grid = Give<Gridocx>("NewGrid", std::make_shared<GivenGrid>(*this));
    }
    std::shared_ptr<ParameterCollection> NewParameterCollection() override
    {
        return Give("NewParameterCollection", EmbeddingHost::NewParameterCollection());
    }

    std::shared_ptr<ServiceBase> Service = std::make_shared<ServiceBase>();
    std::shared_ptr<Gridocx> Grid;

private:
    GivenLauncher m_launcher{*this};
    std::shared_ptr<GivenManager> m_manager = std::make_shared<GivenManager>(*this);
};

class Withholding : public ComponentTest
{
public:
    void UseEditor(IUnknown& created)
    {
        const Access<User::FormUser> user(created);
        Do([&] { Host->Base->Initialize(nullptr); });
        Do([&] { Host->Base->Ask(); });
        Do([&] { user->Paste("txtLocusTag", "X"); });
        Do([&] { user->Click("cmdGenAlleleList"); });
        Do([&] { user->Click("cmdSaveAs"); });
        Do([&] { Host->Base->Save(); });
    }
    void UseSaveAs(IUnknown& created)
    {
        const Access<User::FormUser> user(created);
        Do([&] { Host->Base->Initialize(nullptr); });
        Do([&] { Host->Base->Ask(); });
        Do([&] { user->Paste("txtLocusName", "X"); });
        Do([&] { Host->Base->Save(); });
    }
    void UseService(IUnknown&)
    {
        ReportContextTypes types;
        ReportContexts contexts;
        Do([&] { Host->Service->GetReportContextTypes(types); });
        Do([&] { Host->Service->GetReportContexts(0, contexts); });
    }
    void UseSelector(IUnknown& created)
    {
        const Access<User::FormUser> user(created);
        const Access<ILocusTagSelector> selector(created);
        const auto saved = std::make_shared<Embed::MemoryParameter>();
        Do([&] { saved->Add(Host->NewLocusTagEntry()); });
        Do([&] { selector->Initialize(Host->Give<AnalysisParameter>("parameter", saved)); });
        Do([&] { selector->Initialize(saved); });
        Do([&] { user->Click("cmdAddAll"); });
        Do([&] { Host->Grid->CellClicked(0, 1, 0, nullptr, nullptr); });
        Do([&] { Host->Grid->CellClicked(1, 1, 0, nullptr, nullptr); });
        Do([&] { user->Click("mnuEditSelected"); });
        Do([&] { user->Click("cmdNewSTRLocus"); });
        Do([&] { user->Click("mnuAscending"); });
        Do([&] { selector->SetEnabled(false); });
        Do([&] { selector->Save(*saved); });
    }

    /// What the host hears while it does all that it can do with an object of the class: the
    /// procedures that report, and "raised" for what reaches it.
    std::string Heard(const char* className, void (Withholding::*use)(IUnknown&), const char* what,
                      bool raises)
    {
        Host.emplace();
        Host->Withheld = what;
        Host->Raises = raises;
        if (Host->Withheld == "Parameters")
            Host->Base->Collection = nullptr;
        else
            for (const char* key : {ParameterKey::Locus, ParameterKey::SaveLocusAs})
                Do([&] { Host->Base->Collection->Add(Host->Give(key, MakeLocus(*Host)), key); });
        Held<IUnknown> created;
        if (CreateFor(*Host, className, IID_IUnknown, created.Out()) != S_OK)
            return "not created";
        (this->*use)(*created.Pointer);
        std::string heard;
        for (const auto& report : Host->Utility.Reports)
            heard += (heard.empty() ? "" : " ") + report.Procedure;
        return heard;
    }

    void Do(const std::function<void()>& step)
    {
        try
        {
            step();
        }
        catch (const Failure&)
        {
            Host->Utility.Reports.push_back({"raised", false});
        }
        catch (const User::Refusal&)
        {}
    }

    std::optional<WithholdingHost> Host;
};

TEST_F(Withholding, EndsWhereAGuardStandsOrReachesTheHost)
{
    struct Case
    {
        const char* ClassName;
        void (Withholding::*Use)(IUnknown&);
        const char* What;
        const char* Heard;
    };
    constexpr auto editor = &Withholding::UseEditor;
    constexpr auto saveAs = &Withholding::UseSaveAs;
    constexpr auto service = &Withholding::UseService;
    constexpr auto selector = &Withholding::UseSelector;
    const Case cases[] = {
        {"Tamrivo.LocusEditorPage", editor, "nothing", ""},
        {"Tamrivo.LocusEditorPage", editor, "NewPageBase",
         "UserControl_Initialize txtLocusTag_Change cmdGenAlleleList_Click"},
        {"Tamrivo.LocusEditorPage", editor, "NewPaneAlleleList",
         "UserControl_Initialize m_oPageBase_Initialize raised cmdGenAlleleList_Click"},
        {"Tamrivo.LocusEditorPage", editor, "Parameters",
         "m_oPageBase_Initialize raised m_oPageBase_Validate txtLocusTag_Change "
         "cmdGenAlleleList_Click UpdateLocus m_oPageBase_Save raised"},
        {"Tamrivo.LocusEditorPage", editor, "Locus",
         "m_oPageBase_Initialize raised cmdGenAlleleList_Click UpdateLocus m_oPageBase_Save "
         "raised"},
        {"Tamrivo.LocusEditorPage", editor, "Query CurrentLoci",
         "m_oPageBase_Validate txtLocusTag_Change m_oPageBase_Validate raised"},
        {"Tamrivo.LocusEditorPage", editor, "Query Projects",
         "LoadProjects m_oPageBase_Initialize raised cmdGenAlleleList_Click UpdateLocus "
         "m_oPageBase_Save raised"},
        {"Tamrivo.LocusEditorPage", editor, "Clone",
         "cmdGenAlleleList_Click UpdateLocus cmdSaveAs_Click m_oPageBase_Save raised"},
        {"Tamrivo.LocusEditorPage", editor, "Create Locus", "cmdSaveAs_Click"},
        {"Tamrivo.LocusEditorPage", editor, "Create Allele", "cmdSaveAs_Click"},
        {"Tamrivo.LocusEditorPage", editor, "Start", "cmdSaveAs_Click"},
        {"Tamrivo.SaveAsLocusPage", saveAs, "nothing", ""},
        {"Tamrivo.SaveAsLocusPage", saveAs, "NewPageBase",
         "UserControl_Initialize txtLocusName_Change"},
        {"Tamrivo.SaveAsLocusPage", saveAs, "Parameters",
         "m_oPageBase_Initialize m_oPageBase_Validate raised m_oPageBase_Validate "
         "txtLocusName_Change m_oPageBase_Save"},
        {"Tamrivo.SaveAsLocusPage", saveAs, "SaveLocusAs", "m_oPageBase_Save"},
        {"Tamrivo.SaveAsLocusPage", saveAs, "Query CurrentLoci",
         "LoadLocusNameList m_oPageBase_Validate txtLocusName_Change"},
        {"Tamrivo.SaveAsLocusPage", saveAs, "member", "LoadLocusNameList"},
        {"Tamrivo.Service", service, "nothing", ""},
        {"Tamrivo.Service", service, "NewServiceBase", "not created"},
        {"Tamrivo.Service", service, "NewReportContextType", "raised"},
        {"Tamrivo.Service", service, "Query CurrentLoci", "raised"},
        {"Tamrivo.Service", service, "member", "raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "nothing", ""},
        {"Tamrivo.STRLocusTagSelector", selector, "NewGrid", "not created"},
        {"Tamrivo.STRLocusTagSelector", selector, "parameter", "raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "NewObjectManager",
         "raised raised raised raised raised GridSort raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "NewLocusTagEntry",
         "raised raised raised GridSort raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "NewParameterCollection", "raised raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "Create Grid",
         "raised raised raised raised raised GridSort raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "Create Locus", "raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "Query CurrentLoci",
         "raised raised raised raised GridSort raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "member", "raised raised raised GridSort raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "Start", "raised raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "NewSaveAs", "raised raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "CreateRange",
         "UnHighlightRows raised UnHighlightRows raised GridSort raised raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "CreateStyle", "raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "CreateSortInfo", "GridSort raised"},
        {"Tamrivo.STRLocusTagSelector", selector, "Param",
         "UnHighlightRows raised UnHighlightRows raised"},
    };
    for (const auto& [className, use, what, heard] : cases)
    {
        EXPECT_EQ(Heard(className, use, what, false), heard) << className << ", " << what;
        EXPECT_EQ(Heard(className, use, what, true).empty(), std::string(heard).empty())
            << className << ", raised instead of " << what;
    }
}

} // namespace

} // namespace Tamrivo
