#include "host/framework/host_application.h"

#include "host/alleles/allele_pane.h"
#include "host/alleles/shared_binning.h"
#include "host/database/database.h"
#include "host/framework/host_page_base.h"
#include "host/grid/grid_model.h"

namespace Tamrivo
{

namespace
{

/// A grid whose filling counts as work of the store, so that a person can follow and cancel it.
class WatchedGrid : public GridModel
{
public:
    explicit WatchedGrid(Event<>& progress) : m_progress(progress) {}
    void SetRowCount(double rows) override
    {
        m_progress();
        GridModel::SetRowCount(rows);
    }

private:
    Event<>& m_progress;
};

std::shared_ptr<ParameterCollection> EditorParameters(const std::shared_ptr<Locus>& locus,
                                                      bool binning)
{
    auto parameters = std::make_shared<ParameterCollection>();
    parameters->Add(locus, ParameterKey::Locus);
    if (binning)
        parameters->Add(std::make_shared<SharedBinning>(), ParameterKey::Binning);
    return parameters;
}

} // namespace

HostApplication::HostApplication(Tamrivo::Store& store, FrontEnd& frontEnd)
    : m_store(store), m_frontEnd(frontEnd)
{}

WizardOutcome HostApplication::NewLocus(bool binning)
{
    return RunEditor(CreateObject<Locus>(m_store.Manager(), "Locus"), binning);
}

WizardOutcome HostApplication::EditLocus(const std::string& tag, bool binning)
{
    return RunEditor(StoredLocus(tag), binning);
}

OpenWizard HostApplication::OpenNewLocus(bool binning)
{
    return OpenLocus(CreateObject<Locus>(m_store.Manager(), "Locus"), binning);
}

OpenWizard HostApplication::OpenLocus(const std::shared_ptr<Locus>& locus, bool binning)
{
    return m_launcher.Open(LocusEditorWizard.Name, EditorParameters(locus, binning));
}

std::shared_ptr<Locus> HostApplication::StoredLocus(const std::string& tag)
{
    if (auto locus = m_store.FindLocus(tag))
        return locus;
    throw Failure(StoreError::NotFound, "Host", "There is no locus \"" + tag + "\" in the store");
}

WizardOutcome HostApplication::RunEditor(const std::shared_ptr<Locus>& locus, bool binning)
{
    const auto parameters = EditorParameters(locus, binning);
    const auto result = StartWizard(m_launcher, LocusEditorWizard, parameters);
    return {!result->Cancelled(), parameters};
}

std::vector<ContextKind> HostApplication::ContextKinds()
{
    m_contextKinds->clear();
    ReportContextTypes types;
    LocusService().GetReportContextTypes(types);
    return *m_contextKinds;
}

ReportContexts HostApplication::Contexts(std::int32_t typeID)
{
    ReportContexts contexts;
    LocusService().GetReportContexts(typeID, contexts);
    return contexts;
}

ServiceBase& HostApplication::LocusService()
{
    if (!m_service)
        m_service = std::make_unique<Service>(*this);
    return *static_cast<IServiceAccess&>(*m_service).Service();
}

void HostApplication::ShowFailure(const ErrorRecord& error)
{
    m_log.Write(error);
    m_frontEnd.ShowFailure(error);
}

Connection HostApplication::AttachForm(UserControl& form)
{
    return form.PopupMenuRequested.Connect(
        [this, &form](Menu& menu, int /*flags*/) { m_frontEnd.ShowMenu(form, menu); });
}

std::shared_ptr<PageBase> HostApplication::NewPageBase()
{
    return std::make_shared<HostPageBase>();
}

std::shared_ptr<ServiceBase> HostApplication::NewServiceBase()
{
    return std::make_shared<ServiceBase>();
}

std::shared_ptr<ReportContextType> HostApplication::NewReportContextType()
{
    return std::make_shared<HostReportContextType>(m_contextKinds);
}

std::shared_ptr<LocusTagEntry> HostApplication::NewLocusTagEntry()
{
    return m_parameterStore.NewEntry();
}

std::shared_ptr<PaneAlleleList> HostApplication::NewPaneAlleleList()
{
    return std::make_shared<AllelePane>(SharedObjectManagerGlobal());
}

std::shared_ptr<Gridocx> HostApplication::NewGrid()
{
    return std::make_shared<WatchedGrid>(m_store.SharedDatabase().Progress);
}

MessageAnswer HostApplication::ShowMessage(const std::string& text, std::int32_t kind,
                                           const std::string& title)
{
    return m_frontEnd.ShowMessage(text, kind, title);
}

} // namespace Tamrivo
