#pragma once

#include "contracts/utility.h"
#include "host/framework/failure_log.h"

namespace Tamrivo
{

/// The framework's utility object. A reported failure is logged and shown.
class HostUtility : public Utility
{
public:
    HostUtility(FailureLog& log, FrontEnd& frontEnd) : m_log(log), m_frontEnd(frontEnd) {}

    void ReportError(std::string_view title, std::string_view className,
                     std::string_view procedureName, const ErrorRecord& error,
                     std::string_view extra, bool bFinal) override;

    /// Whether failures are to stop for a debugger.
    bool DebugMode() const override;
    bool DebugBreak(std::int32_t number) override;

    bool KeyExists(const Keyed& container, const std::string& key) const override;
    bool IsIntegerInRange(const TextField& control, std::int32_t low,
                          std::int32_t high) const override;

private:
    FailureLog& m_log;
    FrontEnd& m_frontEnd;
};

} // namespace Tamrivo
