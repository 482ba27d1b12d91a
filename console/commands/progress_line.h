#pragma once

#include "host/loci/progress.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <ostream>

namespace Tamrivo
{

/// A line on the terminal that counts what is done of work that takes longer than a second. It goes
/// when the work is done. Where standard error is no terminal there is none.
class ProgressLine
{
public:
    explicit ProgressLine(std::ostream& err);
    ~ProgressLine() { Clear(); }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Shows "WHAT: 3 of 7 loci".
    LociProgress Counting(const char* what);
    /// Shows "WHAT: 3000000 lines".
    std::function<void(std::size_t)> CountingLines(const char* what);
    void Clear();

private:
    bool IsDue() const;
    std::ostream& Show();

    std::ostream& m_err;
    bool m_isTerminal;
    bool m_isShown = false;
    std::chrono::steady_clock::time_point m_next;
};

} // namespace Tamrivo
