#pragma once

#include "contracts/service_base.h"

#include <utility>
#include <vector>

namespace Tamrivo
{

/// A kind of report context, as the service that offers it has defined it.
struct ContextKind
{
    std::int32_t Identifier;
    std::string Name;
    double Number;
};

/// What a service defines a kind through: the kind joins the host's list.
class HostReportContextType : public ReportContextType
{
public:
    explicit HostReportContextType(std::shared_ptr<std::vector<ContextKind>> kinds)
        : m_kinds(std::move(kinds))
    {}

    void Define(std::int32_t identifier, const std::string& name, double number,
                IServiceAccess& /*owner*/) override
    {
        m_kinds->push_back({identifier, name, number});
    }

private:
    std::shared_ptr<std::vector<ContextKind>> m_kinds;
};

} // namespace Tamrivo
