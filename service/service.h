#pragma once

#include "contracts/host.h"
#include "contracts/service_base.h"
#include "core/guard.h"
#include "core/reference.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace Tamrivo
{

/// The one kind of report context that the library offers.
struct LocusReportContext
{
    static constexpr std::int32_t Identifier = 1010;
    static constexpr std::string_view Name = "Locus";
    static constexpr double Number = 60.0;
};

/// Gives `IServiceAccess::Service` another name to implement it by: in a class called `Service` a
/// member of that name would be a constructor.
class ServiceAccess : public IServiceAccess
{
private:
    std::shared_ptr<ServiceBase> Service() final { return IServiceAccess_Service(); }
    virtual std::shared_ptr<ServiceBase> IServiceAccess_Service() = 0;
};

/// Offers the current loci to the host's reports, each under its tag. Every request for contexts
/// reads the store anew, and its answer is the same whatever type it asks for. A request passes on
/// what the store raises, and `ErrorNumber::KeyTaken` for a tag that the dictionary holds already;
/// what it has added by then stays.
class Service final : public ServiceAccess, private Guarded
{
public:
    /// Passes on a failure of the host's to make a `ServiceBase`; `ErrorNumber::NoObject` for none.
    explicit Service(Host& host);

private:
    std::shared_ptr<ServiceBase> IServiceAccess_Service() override;

    void Class_Initialize();
    void ConnectServiceBase();
    void m_oServiceBase_GetReportContextTypes(ReportContextTypes& colReportContextTypes);
    void m_oServiceBase_GetReportContexts(std::int32_t, ReportContexts& dctReportContexts);

    Host& m_host;
    Reference<ServiceBase> m_oServiceBase;
    Connections m_connections;
};

} // namespace Tamrivo
