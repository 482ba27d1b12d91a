#include "host/framework/host_launcher.h"

#include "core/error.h"
#include "core/text.h"
#include "editor/locus_editor_page.h"
#include "host/framework/host_application.h"
#include "host/framework/wizard_session.h"
#include "saveas/save_as_locus_page.h"

#include <optional>
#include <string>

namespace Tamrivo
{

namespace
{

class Result : public LauncherResult
{
public:
    explicit Result(bool cancelled) : m_cancelled(cancelled) {}
    bool Cancelled() const override { return m_cancelled; }

private:
    bool m_cancelled;
};

/// A page under its two faces.
struct NewPage
{
    std::shared_ptr<UserControl> Form;
    std::shared_ptr<PageBase> Base;
};

/// The editor declares the entries of the first dyes itself.
NewPage CreateEditor(HostApplication& host)
{
    auto page = std::make_shared<LocusEditorPage>(host);
    for (std::int32_t dye = page->cmbDye.ListCount(); dye < host.Store().Dyes().Count(); ++dye)
        page->cmbDye.AddItem(DyeEntry(dye));
    return {page, static_cast<IPageAccess&>(*page).Page()};
}

NewPage CreateSaveAs(HostApplication& host)
{
    auto page = std::make_shared<SaveAsLocusPage>(host);
    return {page, static_cast<IPageAccess&>(*page).Page()};
}

struct WizardPage
{
    std::string_view Wizard;
    NewPage (*Create)(HostApplication&);
};

constexpr WizardPage wizardPages[] = {
    {LocusEditorWizard.Name, CreateEditor},
    {SaveAsWizard.Name, CreateSaveAs},
};

NewPage CreatePage(std::string_view wizard, HostApplication& host)
{
    for (const auto& row : wizardPages)
    {
        if (row.Wizard == wizard)
            return row.Create(host);
    }
    throw Failure(ErrorNumber::InvalidArgument, "Launcher",
                  "There is no wizard \"" + std::string(wizard) + "\"");
}

std::string NoticeOf(std::string_view wizard, const ParameterCollection& parameters,
                     const Store& store)
{
    std::string notice;
    if (store.IsReadOnly())
        notice = "The store is read-only: nothing that is entered here can be stored. ";
    if (wizard == LocusEditorWizard.Name && parameters.KeyExists(ParameterKey::Binning))
        notice += "For binning: sizes and bins of the alleles that there are. The naming "
                  "convention and a new list are left to editing outside of binning. ";
    return TrimRight(notice);
}

} // namespace

std::shared_ptr<LauncherResult> HostLauncher::Start(
    std::string_view wizard, const std::shared_ptr<ParameterCollection>& parameters,
    const std::shared_ptr<BusinessObject>&, std::int32_t /*mode*/, std::int32_t, std::int32_t,
    std::int32_t, std::int32_t, std::int32_t, std::string_view, std::int32_t, std::int32_t)
{
    const OpenWizard open = Open(wizard, parameters);
    m_host.ShownBy().RunWizard(*open.Session);
    return std::make_shared<Result>(open.Session->IsCancelled());
}

OpenWizard HostLauncher::Open(std::string_view wizard,
                              const std::shared_ptr<ParameterCollection>& parameters)
{
    const NewPage page = CreatePage(wizard, m_host);
    const auto pageBase = std::dynamic_pointer_cast<HostPageBase>(page.Base);
    if (!pageBase)
        throw Failure(ErrorNumber::NoObject, "Launcher",
                      "The page of the wizard \"" + std::string(wizard) +
                          "\" has no page object of this host");
    pageBase->SetParameters(parameters);

    auto session = std::make_unique<WizardSession>(std::string(wizard), page.Form, pageBase);
    session->Notice = NoticeOf(wizard, *parameters, m_host.Store());
    Connection failures = session->ValidateFailed.Connect(
        [this](const ErrorRecord& error) { m_host.ShowFailure(error); });
    Connection menus = m_host.AttachForm(session->Page());
    std::optional<ErrorRecord> failure;
    m_host.ShownBy().RunOpening([&] {
        session->Initialize();
        try
        {
            session->Activate();
        }
        catch (const std::exception&)
        {
            failure = CurrentError();
        }
    });
    if (failure)
        m_host.ShowFailure(*failure);
    return {std::move(session), parameters, std::move(failures), std::move(menus)};
}

} // namespace Tamrivo
