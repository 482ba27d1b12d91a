#pragma once

#include "contracts/service_base.h"

namespace Tamrivo
{

/// A kind of report context, as the service that offers it has defined it.
class HostReportContextType : public ReportContextType
{
public:
    void Define(std::int32_t identifier, const std::string& name, double number,
                IServiceAccess& owner) override
    {
        m_identifier = identifier;
        m_name = name;
        m_number = number;
        m_owner = &owner;
    }

    std::int32_t Identifier() const { return m_identifier; }
    const std::string& Name() const { return m_name; }
    double Number() const { return m_number; }
    /// Null before `Define`.
    IServiceAccess* Owner() const { return m_owner; }

private:
    std::int32_t m_identifier = 0;
    std::string m_name;
    double m_number = 0;
    IServiceAccess* m_owner = nullptr;
};

} // namespace Tamrivo
