#pragma once

#include "core/error.h"
#include "host/loci/progress.h"

#include <functional>
#include <string>

namespace Tamrivo
{

/// Runs what a person sets off. Nothing may leave an event handler of Qt as an exception, so what
/// fails goes to the host and what is refused is told beside the widget.
class Actions
{
public:
    using FailureHandler = std::function<void(const ErrorRecord&)>;

    explicit Actions(FailureHandler onFailure) : m_onFailure(std::move(onFailure)) {}

    /// Gives whether the action ran to its end.
    bool Run(const std::function<void()>& action) const;

private:
    FailureHandler m_onFailure;
};

/// Shows a reason beside the widget that has the focus, for as long as it takes to read it.
void ShowReason(const std::string& reason);

} // namespace Tamrivo
