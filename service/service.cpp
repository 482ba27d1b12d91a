#include "service/service.h"

namespace Tamrivo
{

Service::Service(Host& host) : Guarded(host.SharedUtility(), "Service"), m_host(host)
{
    Class_Initialize();
}

void Service::Class_Initialize()
{
    Propagating("Class_Initialize", [&](Guard& run) {
        run([&] { m_oServiceBase = m_host.NewServiceBase(); });
        run([&] { ConnectServiceBase(); });
    });
}

void Service::ConnectServiceBase()
{
    m_connections.On(m_oServiceBase->GetReportContextTypes,
                     [this](ReportContextTypes& colReportContextTypes) {
                         m_oServiceBase_GetReportContextTypes(colReportContextTypes);
                     });
    m_connections.On(m_oServiceBase->GetReportContexts,
                     [this](std::int32_t lReportContextTypeID, ReportContexts& dctReportContexts) {
                         m_oServiceBase_GetReportContexts(lReportContextTypeID, dctReportContexts);
                     });
}

std::shared_ptr<ServiceBase> Service::IServiceAccess_Service()
{
    return Propagating("IServiceAccess_Service (Get)",
                       [&](Guard&) -> std::shared_ptr<ServiceBase> { return m_oServiceBase; });
}

void Service::m_oServiceBase_GetReportContextTypes(ReportContextTypes& colReportContextTypes)
{
    const Reference<ReportContextType> oType = m_host.NewReportContextType();
    oType->Define(LocusReportContext::Identifier, std::string(LocusReportContext::Name),
                  LocusReportContext::Number, *this);
    colReportContextTypes.Add(oType);
}

void Service::m_oServiceBase_GetReportContexts(std::int32_t, ReportContexts& dctReportContexts)
{
    const Reference<ObjectList> oLoci =
        CurrentLoci(m_host.SharedObjectManagerGlobal().Manager(), "");
    for (const auto& oMember : oLoci->Members())
    {
        const auto oLocus = As<Locus>(oMember);
        dctReportContexts.Add(oLocus->LocusTag(), oLocus);
    }
}

} // namespace Tamrivo
