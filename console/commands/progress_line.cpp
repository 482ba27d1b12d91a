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
    return [this, what](std::size_t done, std::size_t total) { Show(what, done, total); };
}

void ProgressLine::Clear()
{
    if (m_isShown)
        m_err << eraseLine << std::flush;
    m_isShown = false;
}

void ProgressLine::Show(const char* what, std::size_t done, std::size_t total)
{
    const auto now = Clock::now();
    if (!m_isTerminal || now < m_next)
        return;
    m_next = now + std::chrono::milliseconds(200);
    m_isShown = true;
    m_err << eraseLine << what << ": " << done << " of " << total << " loci" << std::flush;
}

} // namespace Tamrivo
