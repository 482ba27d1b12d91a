#pragma once

#include "host/framework/front_end.h"

#include <memory>

namespace spdlog
{
class logger;
}

namespace Tamrivo
{

/// The file "tamrivo.log" in the `StateDirectory`, one line a failure; opened at the first one.
/// Where it can't be opened nothing is logged; the front end shows each failure anyway.
class FailureLog
{
public:
    /// Notes a failure that a guard has caught.
    void Write(const FailureReport& report);
    /// Notes a failure that reached the host itself.
    void Write(const ErrorRecord& error);

private:
    spdlog::logger& Logger();

    std::shared_ptr<spdlog::logger> m_logger;
};

} // namespace Tamrivo
