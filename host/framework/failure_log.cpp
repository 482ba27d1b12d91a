#include "host/framework/failure_log.h"

#include "host/framework/environment.h"

#include <spdlog/sinks/null_sink.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/spdlog.h>

namespace Tamrivo
{

namespace
{

spdlog::sink_ptr OpenSink()
{
    constexpr std::size_t fileSize = 1'000'000;
    constexpr std::size_t olderFiles = 1;
    try
    {
        return std::make_shared<spdlog::sinks::rotating_file_sink_mt>(LogFile(), fileSize,
                                                                      olderFiles);
    }
    catch (const spdlog::spdlog_ex&)
    {
        return std::make_shared<spdlog::sinks::null_sink_mt>();
    }
}

} // namespace

void FailureLog::Write(const FailureReport& report)
{
    Logger().error("{}.{}: {} [{}, {}]{}", report.ClassName, report.ProcedureName,
                   report.Error.Description, report.Error.Source, report.Error.Number,
                   report.Final ? ", ended there" : "");
}

void FailureLog::Write(const ErrorRecord& error)
{
    Logger().error("host: {} [{}, {}]", error.Description, error.Source, error.Number);
}

spdlog::logger& FailureLog::Logger()
{
    if (!m_logger)
    {
        m_logger = std::make_shared<spdlog::logger>("tamrivo", OpenSink());
        m_logger->flush_on(spdlog::level::err);
    }
    return *m_logger;
}

} // namespace Tamrivo
