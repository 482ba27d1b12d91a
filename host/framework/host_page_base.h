#pragma once

#include "contracts/page.h"

namespace Tamrivo
{

/// The host's page object. The wizard that shows the page gives it its parameters and hears of its
/// changes; before that the parameters are empty and a change is of no concern to anybody.
class HostPageBase : public PageBase
{
public:
    const std::shared_ptr<ParameterCollection>& Parameters() override { return m_parameters; }
    void PageChanged() override { Changed(); }

    void SetParameters(const std::shared_ptr<ParameterCollection>& parameters)
    {
        m_parameters = parameters;
    }
    Event<> Changed;

private:
    std::shared_ptr<ParameterCollection> m_parameters = std::make_shared<ParameterCollection>();
};

} // namespace Tamrivo
