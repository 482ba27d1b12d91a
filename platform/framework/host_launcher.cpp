#include "platform/framework/host_launcher.h"

#include "core/error.h"
#include "editor/locus_editor_page.h"
#include "platform/framework/host_application.h"
#include "platform/framework/wizard_session.h"
#include "saveas/save_as_locus_page.h"

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

template <class Page>
NewPage Create(Host& host)
{
    auto page = std::make_shared<Page>(host);
    return {page, static_cast<IPageAccess&>(*page).Page()};
}

struct WizardPage
{
    std::string_view Wizard;
    NewPage (*Create)(Host&);
};

constexpr WizardPage wizardPages[] = {
    {LocusEditorWizard.Name, Create<LocusEditorPage>},
    {SaveAsWizard.Name, Create<SaveAsLocusPage>},
};

NewPage CreatePage(std::string_view wizard, Host& host)
{
    for (const auto& row : wizardPages)
    {
        if (row.Wizard == wizard)
            return row.Create(host);
    }
    throw Failure(ErrorNumber::InvalidArgument, "Launcher",
                  "There is no wizard \"" + std::string(wizard) + "\"");
}

} // namespace

std::shared_ptr<LauncherResult> HostLauncher::Start(
    std::string_view wizard, const std::shared_ptr<ParameterCollection>& parameters,
    const std::shared_ptr<BusinessObject>&, std::int32_t /*mode*/, std::int32_t, std::int32_t,
    std::int32_t, std::int32_t, std::int32_t, std::string_view, std::int32_t, std::int32_t)
{
    const NewPage page = CreatePage(wizard, m_host);
    const auto pageBase = std::dynamic_pointer_cast<HostPageBase>(page.Base);
    if (!pageBase)
        throw Failure(ErrorNumber::NoObject, "Launcher",
                      "The page of the wizard \"" + std::string(wizard) +
                          "\" has no page object of this host");
    pageBase->SetParameters(parameters);

    WizardSession session(std::string(wizard), page.Form, pageBase);
    session.ValidateFailed = [this](const ErrorRecord& error) { m_host.ShowFailure(error); };
    m_host.AttachForm(session.Page());
    session.Initialize();
    try
    {
        session.Activate();
    }
    catch (...)
    {
        m_host.ShowFailure(CurrentError());
    }
    m_host.ShownBy().RunWizard(session);
    return std::make_shared<Result>(session.IsCancelled());
}

} // namespace Tamrivo
