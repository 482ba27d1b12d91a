#include "automation/named_host.h"

#include "automation/named_objects.h"
#include "automation/parameters_object.h"
#include "host/alleles/allele_pane.h"
#include "host/framework/form_questions.h"
#include "host/framework/host_page_base.h"
#include "host/grid/grid_model.h"

namespace Tamrivo::Automation
{

namespace
{

class WizardResult : public LauncherResult
{
public:
    explicit WizardResult(bool isCancelled) : m_isCancelled(isCancelled) {}
    bool Cancelled() const override { return m_isCancelled; }

private:
    bool m_isCancelled;
};

class NotedContextType : public ReportContextType
{
public:
    explicit NotedContextType(std::shared_ptr<List> types) : m_types(std::move(types)) {}
    void Define(std::int32_t identifier, const std::string& name, double, IServiceAccess&) override
    {
        m_types->emplace_back(std::to_string(identifier) + " " + name);
    }

private:
    std::shared_ptr<List> m_types;
};

/// The answer is a truth value, whether the wizard was completed, or an object with Cancelled.
bool IsCompleted(const Value& answer)
{
    const std::string what = "What the host's StartWizard gives";
    if (const auto* object = std::get_if<ObjectPointer>(&answer); object && *object)
        return !std::get<bool>(ConvertTo(Type::Boolean, (*object)->Get("Cancelled"), "Cancelled"));
    if (answer.IsEmpty() || std::holds_alternative<ObjectPointer>(answer))
        throw Failure(ErrorNumber::NoObject, "Host",
                      what + " must tell whether the wizard was completed, and is nothing");
    return std::get<bool>(ConvertTo(Type::Boolean, answer, what));
}

} // namespace

NamedHost::NamedHost(ObjectPointer client)
    : m_client(std::move(client)), m_objects(NewNamedManager(m_client))
{}

std::shared_ptr<PageBase> NamedHost::NewPageBase()
{
    return std::make_shared<HostPageBase>();
}

std::shared_ptr<ServiceBase> NamedHost::NewServiceBase()
{
    return std::make_shared<ServiceBase>();
}

std::shared_ptr<ReportContextType> NamedHost::NewReportContextType()
{
    return std::make_shared<NotedContextType>(m_contextTypes);
}

std::shared_ptr<LocusTagEntry> NamedHost::NewLocusTagEntry()
{
    return NewNamedEntry(*m_objects);
}

std::shared_ptr<PaneAlleleList> NamedHost::NewPaneAlleleList()
{
    return std::make_shared<AllelePane>(SharedObjectManagerGlobal());
}

std::shared_ptr<Gridocx> NamedHost::NewGrid()
{
    return std::make_shared<GridModel>();
}

MessageAnswer NamedHost::ShowMessage(const std::string& text, std::int32_t kind,
                                     const std::string& title)
{
    const Value answer = m_client->Call("ShowMessage", Access::Method, {text, kind, title});
    if (kind != MessageKind::ExclamationYesNo)
        return MessageAnswer::Ok;
    const Value number = ConvertTo(Type::Long, answer, "What the host's ShowMessage gives");
    const bool isYes =
        std::get<std::int32_t>(number) == static_cast<std::int32_t>(MessageAnswer::Yes);
    return isYes ? MessageAnswer::Yes : MessageAnswer::No;
}

void NamedHost::ReportError(std::string_view /*title*/, std::string_view className,
                            std::string_view procedureName, const ErrorRecord& error,
                            std::string_view /*extra*/, bool bFinal)
{
    try
    {
        m_client->Call("ReportError", Access::Method,
                       {std::string(className), std::string(procedureName), error.Number,
                        error.Description, bFinal});
    }
    catch (const std::exception&)
    {
        return;
    }
}

bool NamedHost::KeyExists(const Keyed& container, const std::string& key) const
{
    return HasKey(container, key);
}

bool NamedHost::IsIntegerInRange(const TextField& control, std::int32_t low,
                                 std::int32_t high) const
{
    return HoldsIntegerInRange(control, low, high);
}

std::shared_ptr<LauncherResult> NamedHost::Start(
    std::string_view wizard, const std::shared_ptr<ParameterCollection>& parameters,
    const std::shared_ptr<BusinessObject>&, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
    std::int32_t, std::int32_t, std::string_view, std::int32_t, std::int32_t)
{
    const Value answer =
        m_client->Call("StartWizard", Access::Method,
                       {std::string(wizard), std::make_shared<ParametersObject>(parameters)});
    return std::make_shared<WizardResult>(!IsCompleted(answer));
}

} // namespace Tamrivo::Automation
