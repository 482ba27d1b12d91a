#include "service/service.h"

namespace Tamrivo
{

Service::Service(Host& host) : Guarded(host.SharedUtility(), "Service"), m_host(host)
{
    Class_Initialize();
    m_oServiceBase->GetReportContextTypes = [this](ReportContextTypes& colReportContextTypes) {
        m_oServiceBase_GetReportContextTypes(colReportContextTypes);
    };
    m_oServiceBase->GetReportContexts = [this](std::int32_t lReportContextTypeID,
                                               ReportContexts& dctReportContexts) {
        m_oServiceBase_GetReportContexts(lReportContextTypeID, dctReportContexts);
    };
}

Service::~Service()
{
    m_oServiceBase->GetReportContextTypes = nullptr;
    m_oServiceBase->GetReportContexts = nullptr;
}

void Service::Class_Initialize()
{
    Propagating("Class_Initialize",
                [&](Guard& run) { run([&] { m_oServiceBase = m_host.NewServiceBase(); }); });
}

std::shared_ptr<ServiceBase> Service::IServiceAccess_Service()
{
    return Propagating("IServiceAccess_Service (Get)",
                       [&](Guard& run) { return run([&] { return m_oServiceBase; }); });
}

void Service::m_oServiceBase_GetReportContextTypes(ReportContextTypes& colReportContextTypes)
{
    const auto oType = m_host.NewReportContextType();
    oType->Define(LocusReportContext::Identifier, std::string(LocusReportContext::Name),
                  LocusReportContext::Number, *this);
    colReportContextTypes.Add(oType);
}

void Service::m_oServiceBase_GetReportContexts(std::int32_t, ReportContexts& dctReportContexts)
{
    const auto oLoci = CurrentLoci(m_host.SharedObjectManagerGlobal().Manager(), "");
    for (const auto& member : oLoci->Members())
    {
        const auto oLocus = As<Locus>(member);
        dctReportContexts.Add(oLocus->LocusTag(), oLocus);
    }
}

} // namespace Tamrivo
