#include "automation/service_object.h"

#include "automation/conversions.h"
#include "automation/memory_host.h"
#include "controls/user.h"

namespace Tamrivo::Automation
{

const Class& ServiceObject::ClassOf() const
{
    return ServiceClass;
}

Value ServiceObject::Do(std::size_t position, const List& arguments)
{
    return DoRow(*this, ServiceRows, position, arguments);
}

ServiceBase& ServiceObject::Made()
{
    if (!m_client)
        m_client = std::make_shared<MemoryHost>();
    if (!m_host)
        m_host = std::make_unique<NamedHost>(m_client);
    if (!m_service)
        m_service = std::make_unique<Service>(*m_host);
    return *static_cast<IServiceAccess&>(*m_service).Service();
}

Value ServiceObject::GetHost(const Member&, const List&)
{
    if (!m_client)
        m_client = std::make_shared<MemoryHost>();
    return m_client;
}

Value ServiceObject::PutHost(const Member&, const List& arguments)
{
    if (m_host)
        throw User::Refusal(
            "The service is made for its host already; set Host before anything else");
    m_client = Argument<ObjectPointer>(arguments, 0);
    return {};
}

Value ServiceObject::ContextTypes(const Member&, const List&)
{
    ServiceBase& base = Made();
    m_host->ContextTypes()->clear();
    ReportContextTypes types;
    base.GetReportContextTypes(types);
    return *m_host->ContextTypes();
}

Value ServiceObject::Contexts(const Member&, const List& arguments)
{
    ReportContexts contexts;
    Made().GetReportContexts(Long(arguments, 0), contexts);
    List loci;
    for (const auto& [tag, locus] : contexts.Entries())
        loci.emplace_back(ToObject(locus));
    return loci;
}

} // namespace Tamrivo::Automation
