#pragma once

#include "automation/object.h"
#include "contracts/host.h"
#include "controls/screen.h"
#include "host/grid/grid_model_helper.h"

namespace Tamrivo::Automation
{

/// A client's object as the library's host. What the client decides is asked of it by name: Create
/// ("Locus"), Query ("CurrentLoci", "Projects"), Save, StartWizard, ShowMessage and ReportError.
/// Grids, pane and page objects are those of the project's own host.
class NamedHost final : public Host, private Utility, private Launcher, private ObjectManagerGlobal
{
public:
    /// Raises `ErrorNumber::NoObject` for null.
    explicit NamedHost(ObjectPointer client);

    /// What the service has defined its contexts as, "1010 Locus", since it was asked last.
    const std::shared_ptr<List>& ContextTypes() const { return m_contextTypes; }

    Utility& SharedUtility() override { return *this; }
    Launcher& SharedLauncher() override { return *this; }
    ObjectManagerGlobal& SharedObjectManagerGlobal() override { return *this; }
    GridHelper& SharedGridHelper() override { return m_gridHelper; }
    Screen& SharedScreen() override { return m_screen; }

    std::shared_ptr<ObjectManager> NewObjectManager() override { return m_objects; }
    std::shared_ptr<PageBase> NewPageBase() override;
    std::shared_ptr<ServiceBase> NewServiceBase() override;
    std::shared_ptr<ReportContextType> NewReportContextType() override;
    std::shared_ptr<LocusTagEntry> NewLocusTagEntry() override;
    std::shared_ptr<PaneAlleleList> NewPaneAlleleList() override;
    std::shared_ptr<Gridocx> NewGrid() override;
    MessageAnswer ShowMessage(const std::string& text, std::int32_t kind,
                              const std::string& title) override;

    /// A report that the client fails to take is dropped: what it tells of is on its way already.
    void ReportError(std::string_view title, std::string_view className,
                     std::string_view procedureName, const ErrorRecord& error,
                     std::string_view extra, bool bFinal) override;

private:
    bool DebugMode() const override { return false; }
    bool DebugBreak(std::int32_t) override { return false; }
    bool KeyExists(const Keyed& container, const std::string& key) const override;
    bool IsIntegerInRange(const TextField& control, std::int32_t low,
                          std::int32_t high) const override;
    std::shared_ptr<LauncherResult> Start(std::string_view wizard,
                                          const std::shared_ptr<ParameterCollection>& parameters,
                                          const std::shared_ptr<BusinessObject>&, std::int32_t,
                                          std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                          std::int32_t, std::string_view, std::int32_t,
                                          std::int32_t) override;
    ObjectManager& Manager() override { return *m_objects; }

    ObjectPointer m_client;
    std::shared_ptr<ObjectManager> m_objects;
    std::shared_ptr<List> m_contextTypes = std::make_shared<List>();
    GridModelHelper m_gridHelper;
    Screen m_screen;
};

} // namespace Tamrivo::Automation
