#pragma once

#include "contracts/host.h"
#include "controls/screen.h"
#include "controls/user_control.h"
#include "host/framework/failure_log.h"
#include "host/framework/host_launcher.h"
#include "host/framework/host_utility.h"
#include "host/framework/report_context_type.h"
#include "host/grid/grid_model_helper.h"
#include "host/store/parameter_store.h"
#include "host/store/store.h"
#include "service/service.h"

#include <memory>
#include <string>

namespace Tamrivo
{

/// How a wizard ended that the host has started, and what its pages left.
struct WizardOutcome
{
    bool Completed = false;
    std::shared_ptr<ParameterCollection> Parameters;
};

/// The application around the library: it gives the pages and the service what they ask for, and
/// runs them in a front end on a store.
class HostApplication : public Host
{
public:
    /// Both must outlive the application.
    HostApplication(Tamrivo::Store& store, FrontEnd& frontEnd);

    Tamrivo::Store& Store() { return m_store; }
    FrontEnd& ShownBy() { return m_frontEnd; }
    ParameterStore& Parameters() { return m_parameterStore; }

    // What a front end starts

    /// Runs the locus editor on a new locus. In binning mode a `BinningContext` stands in its
    /// parameters.
    WizardOutcome NewLocus(bool binning);
    /// Runs the locus editor on a stored locus. Raises `StoreError::NotFound`.
    WizardOutcome EditLocus(const std::string& tag, bool binning);
    /// Opens the locus editor on a new locus, or on a stored one, and leaves its end to the caller.
    OpenWizard OpenNewLocus(bool binning);
    OpenWizard OpenLocus(const std::shared_ptr<Locus>& locus, bool binning);

    /// The stored locus with the tag. Raises `StoreError::NotFound`.
    std::shared_ptr<Locus> StoredLocus(const std::string& tag);

    /// The kinds of report context that the service offers.
    std::vector<ContextKind> ContextKinds();
    /// The contexts of a kind, in the service's order.
    ReportContexts Contexts(std::int32_t typeID);

    /// Logs a failure that reached the host and shows it.
    void ShowFailure(const ErrorRecord& error);
    /// Lets the front end show the form's popup menus.
    [[nodiscard]] Connection AttachForm(UserControl& form);

    // What the library asks for

    Utility& SharedUtility() override { return m_utility; }
    Launcher& SharedLauncher() override { return m_launcher; }
    ObjectManagerGlobal& SharedObjectManagerGlobal() override { return m_store.ManagerGlobal(); }
    GridHelper& SharedGridHelper() override { return m_gridHelper; }
    Screen& SharedScreen() override { return m_screen; }

    std::shared_ptr<ObjectManager> NewObjectManager() override { return m_store.NewManager(); }
    std::shared_ptr<PageBase> NewPageBase() override;
    std::shared_ptr<ServiceBase> NewServiceBase() override;
    std::shared_ptr<ReportContextType> NewReportContextType() override;
    std::shared_ptr<LocusTagEntry> NewLocusTagEntry() override;
    std::shared_ptr<PaneAlleleList> NewPaneAlleleList() override;
    std::shared_ptr<Gridocx> NewGrid() override;

    MessageAnswer ShowMessage(const std::string& text, std::int32_t kind,
                              const std::string& title) override;

private:
    WizardOutcome RunEditor(const std::shared_ptr<Locus>& locus, bool binning);
    ServiceBase& LocusService();

    Tamrivo::Store& m_store;
    FrontEnd& m_frontEnd;
    FailureLog m_log;
    HostUtility m_utility{m_log, m_frontEnd};
    HostLauncher m_launcher{*this};
    ParameterStore m_parameterStore{m_store};
    GridModelHelper m_gridHelper;
    Screen m_screen;
    std::unique_ptr<Service> m_service;
    std::shared_ptr<std::vector<ContextKind>> m_contextKinds =
        std::make_shared<std::vector<ContextKind>>(); ///< Those of the request that is going on.
};

} // namespace Tamrivo
