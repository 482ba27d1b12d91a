#include "host/framework/host_utility.h"

#include "host/framework/debugger.h"
#include "host/framework/form_questions.h"

namespace Tamrivo
{

void HostUtility::ReportError(std::string_view /*title*/, std::string_view className,
                              std::string_view procedureName, const ErrorRecord& error,
                              std::string_view /*extra*/, bool bFinal)
{
    const FailureReport report{std::string(className), std::string(procedureName), error, bFinal};
    m_log.Write(report);
    m_frontEnd.ShowReport(report);
}

bool HostUtility::DebugMode() const
{
    return IsDebuggerMeant();
}

bool HostUtility::DebugBreak(std::int32_t /*number*/)
{
    return StopForDebugger();
}

bool HostUtility::KeyExists(const Keyed& container, const std::string& key) const
{
    return HasKey(container, key);
}

bool HostUtility::IsIntegerInRange(const TextField& control, std::int32_t low,
                                   std::int32_t high) const
{
    return HoldsIntegerInRange(control, low, high);
}

} // namespace Tamrivo
