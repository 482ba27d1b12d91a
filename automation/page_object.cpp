#include "automation/page_object.h"

#include "automation/pane_object.h"
#include "automation/parameters_object.h"
#include "editor/locus_editor_page.h"
#include "saveas/save_as_locus_page.h"

namespace Tamrivo::Automation
{

namespace
{

template <class Page>
std::shared_ptr<UserControl> Make(Host& host, std::shared_ptr<PageBase>& base)
{
    auto page = std::make_shared<Page>(host);
    base = static_cast<IPageAccess&>(*page).Page();
    return page;
}

} // namespace

std::shared_ptr<PageObject> NewEditorPage()
{
    return std::make_shared<PageObject>(&Make<LocusEditorPage>);
}

std::shared_ptr<PageObject> NewSaveAsPage()
{
    return std::make_shared<PageObject>(&Make<SaveAsLocusPage>);
}

const Class& PageObject::ClassOf() const
{
    return PageClass;
}

Value PageObject::Do(std::size_t position, const List& arguments)
{
    return position < FormRows.size()
               ? DoRow<FormObject>(*this, FormRows, position, arguments)
               : DoRow(*this, PageRows, position - FormRows.size(), arguments);
}

UserControl& PageObject::MakeForm(NamedHost& host)
{
    std::shared_ptr<PageBase> base;
    auto page = m_maker(host, base);
    m_base = std::dynamic_pointer_cast<HostPageBase>(base);
    m_page = std::move(page);
    return *m_page;
}

WizardSession& PageObject::OpenSession()
{
    if (!m_session)
        throw User::Refusal("The page isn't open; call Open first");
    if (m_session->HasEnded())
        throw User::Refusal("The page has been saved; create another one to go on");
    return *m_session;
}

Value PageObject::Open(const Member&, const List& arguments)
{
    if (m_session)
        throw User::Refusal("The page has been opened before; create another one");
    const auto* parameters =
        dynamic_cast<ParametersObject*>(Argument<ObjectPointer>(arguments, 0).get());
    if (!parameters)
        throw Failure(ErrorNumber::NoObject, "Page",
                      "Open takes a parameter collection, as Create(\"Parameters\") of the "
                      "in-memory host gives it");
    Form();
    m_base->SetParameters(parameters->Shared());
    auto session = std::make_unique<WizardSession>(std::string(m_page->Name()), m_page, m_base);
    auto reports = session->ValidateFailed.Connect([this](const ErrorRecord& error) {
        HostOfForm().ReportError({}, "Page", "Validate", error, {}, true);
    });
    try
    {
        session->Initialize();
        session->Activate();
    }
    catch (...)
    {
        // A page that is filled in part can't be used; the next call makes another.
        session.reset();
        m_page.reset();
        throw;
    }
    m_session = std::move(session);
    m_reports = std::move(reports);
    return {};
}

Value PageObject::Activate(const Member&, const List&)
{
    OpenSession().Activate();
    return {};
}

Value PageObject::Deactivate(const Member&, const List&)
{
    OpenSession().Deactivate();
    return {};
}

Value PageObject::Validate(const Member&, const List&)
{
    return OpenSession().Validate();
}

Value PageObject::Save(const Member&, const List&)
{
    if (!OpenSession().Finish())
        throw User::Refusal("The page isn't valid and can't be saved; Validate tells when it is");
    return {};
}

const User::AllelePaneControl& PageObject::PaneControl()
{
    const auto* const pane =
        dynamic_cast<const User::AllelePaneControl*>(Form().Find("ctlPaneAlleleList"));
    if (!pane)
        throw User::Refusal(std::string(Form().Name()) + " has no allele pane");
    return *pane;
}

Value PageObject::Pane(const Member&, const List&)
{
    PaneControl();
    return std::make_shared<PaneObject>(std::static_pointer_cast<PageObject>(shared_from_this()));
}

} // namespace Tamrivo::Automation
