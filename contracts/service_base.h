#pragma once

#include "contracts/locus.h"
#include "core/collection.h"
#include "core/dictionary.h"
#include "core/event.h"

#include <memory>
#include <string>

namespace Tamrivo
{

class IServiceAccess;

/// A kind of context that reports may be made for.
class ReportContextType
{
public:
    virtual ~ReportContextType() = default;
    /// @param identifier what `ServiceBase::GetReportContexts` is asked with
    /// @param number     the host's own use
    /// @param owner      the service that gives the contexts
    virtual void Define(std::int32_t identifier, const std::string& name, double number,
                        IServiceAccess& owner) = 0;
};

using ReportContextTypes = Collection<std::shared_ptr<ReportContextType>>;
using ReportContexts = Dictionary<std::shared_ptr<Locus>>;

/// The framework's side of a service, which creates it and answers its events.
class ServiceBase
{
public:
    virtual ~ServiceBase() = default;
    Event<ReportContextTypes&> GetReportContextTypes;
    Event<std::int32_t, ReportContexts&> GetReportContexts;
};

/// A service of a library.
class IServiceAccess
{
public:
    virtual ~IServiceAccess() = default;
    virtual std::shared_ptr<ServiceBase> Service() = 0;
};

} // namespace Tamrivo
