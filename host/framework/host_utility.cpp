#include "host/framework/host_utility.h"

#include "controls/text_field.h"
#include "core/numbers.h"
#include "core/text.h"
#include "host/framework/debugger.h"

#include <cmath>

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
    return container.KeyExists(key) || container.KeyExists(TrimRight(key));
}

bool HostUtility::IsIntegerInRange(const TextField& control, std::int32_t low,
                                   std::int32_t high) const
{
    if (!IsNumeric(control.Text()))
        return false;
    const double value = ToDouble(control.Text());
    return std::trunc(value) == value && low <= value && value <= high;
}

} // namespace Tamrivo
