#include "console/commands/progress_line.h"

#include <unistd.h>

namespace Tamrivo
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr const char* eraseLine = "\r\x1B[K";

} // namespace

ProgressLine::ProgressLine(std::ostream& err)
    : m_err(err),
      m_isTerminal(isatty(STDERR_FILENO) == 1),
      m_next(Clock::now() + std::chrono::seconds(1))
{}

LociProgress ProgressLine::Counting(const char* what)
{
    return [this, what](std::size_t done, std::size_t total) {
        if (IsDue())
            Show() << what << ": " << done << " of " << total << " loci" << std::flush;
    };
}

std::function<void(std::size_t)> ProgressLine::CountingLines(const char* what)
{
    return [this, what](std::size_t lines) {
        if (IsDue())
            Show() << what << ": " << lines << " lines" << std::flush;
    };
}

void ProgressLine::Clear()
{
    if (m_isShown)
        m_err << eraseLine << std::flush;
    m_isShown = false;
}

bool ProgressLine::IsDue() const
{
    return m_isTerminal && Clock::now() >= m_next;
}

std::ostream& ProgressLine::Show()
{
    m_next = Clock::now() + std::chrono::milliseconds(200);
    m_isShown = true;
    return m_err << eraseLine;
}

} // namespace Tamrivo
