#pragma once

#include "contracts/host.h"
#include "controls/screen.h"
#include "examples/embed/memory_grid.h"
#include "examples/embed/memory_objects.h"
#include "examples/embed/module_loader.h"

#include <functional>
#include <map>
#include <string>

namespace Embed
{

/// The framework's side of a page, which remembers the page's last answer.
class MemoryPageBase : public Tamrivo::PageBase
{
public:
    std::shared_ptr<Tamrivo::ParameterCollection> Shared;
    bool IsValid = false;

    const std::shared_ptr<Tamrivo::ParameterCollection>& Parameters() override { return Shared; }
    void PageChanged() override { Validate(IsValid); }
};

/// A wizard's page as the person in front of it has it.
struct OpenPage
{
    Tamrivo::UserControl& Form;
    Tamrivo::User::FormUser& User;
    MemoryPageBase& Base;
};

/// The list of locus tags of an analysis parameter with one such list, kept in memory.
class MemoryParameter : public Tamrivo::AnalysisParameter,
                        public Tamrivo::FragAnalysisParam,
                        public Tamrivo::LocusTagEntries
{
public:
    Tamrivo::FragAnalysisParam& FragAnalysisParam() override { return *this; }
    std::int16_t LocusTagListCount() const override { return 1; }
    Tamrivo::LocusTagEntries& LocusTagList(std::int16_t) override { return *this; }
    std::span<const std::shared_ptr<Tamrivo::LocusTagEntry>> Entries() const override
    {
        return m_entries;
    }
    void Clear() override { m_entries.clear(); }
    void Add(const std::shared_ptr<Tamrivo::LocusTagEntry>& entry) override
    {
        m_entries.push_back(entry);
    }

private:
    std::vector<std::shared_ptr<Tamrivo::LocusTagEntry>> m_entries;
};

/// A host that keeps everything in memory, prints what it is told, and asks `Person` for what a
/// person does on each page. The classes of the library are created by name.
class MemoryHost : public Tamrivo::Host, private Tamrivo::Utility, private Tamrivo::Launcher
{
public:
    /// What a person does on the page of a wizard; gives whether the wizard is to be completed.
    std::map<std::string, std::function<bool(OpenPage)>, std::less<>> Person;
    MemoryStore Store;
    ModuleLoader Classes{*this};

    Tamrivo::Utility& SharedUtility() override { return *this; }
    Tamrivo::Launcher& SharedLauncher() override { return *this; }
    Tamrivo::ObjectManagerGlobal& SharedObjectManagerGlobal() override { return Store; }
    Tamrivo::GridHelper& SharedGridHelper() override { return m_gridHelper; }
    Tamrivo::Screen& SharedScreen() override { return m_screen; }

    std::shared_ptr<Tamrivo::ObjectManager> NewObjectManager() override;
    std::shared_ptr<Tamrivo::PageBase> NewPageBase() override;
    std::shared_ptr<Tamrivo::ServiceBase> NewServiceBase() override;
    std::shared_ptr<Tamrivo::ReportContextType> NewReportContextType() override;
    std::shared_ptr<Tamrivo::LocusTagEntry> NewLocusTagEntry() override;
    std::shared_ptr<Tamrivo::PaneAlleleList> NewPaneAlleleList() override;
    std::shared_ptr<Tamrivo::Gridocx> NewGrid() override;

    Tamrivo::MessageAnswer ShowMessage(const std::string& text, std::int32_t kind,
                                       const std::string& title) override;

private:
    void ReportError(std::string_view title, std::string_view className,
                     std::string_view procedureName, const Tamrivo::ErrorRecord& error,
                     std::string_view extra, bool bFinal) override;
    bool DebugMode() const override { return false; }
    bool DebugBreak(std::int32_t) override { return false; }
    bool KeyExists(const Tamrivo::Keyed& container, const std::string& key) const override;
    bool IsIntegerInRange(const Tamrivo::TextField& control, std::int32_t low,
                          std::int32_t high) const override;

    std::shared_ptr<Tamrivo::LauncherResult> Start(
        std::string_view wizard, const std::shared_ptr<Tamrivo::ParameterCollection>& parameters,
        const std::shared_ptr<Tamrivo::BusinessObject>&, std::int32_t, std::int32_t, std::int32_t,
        std::int32_t, std::int32_t, std::int32_t, std::string_view, std::int32_t,
        std::int32_t) override;

    MemoryGridHelper m_gridHelper;
    Tamrivo::Screen m_screen;
};

} // namespace Embed
