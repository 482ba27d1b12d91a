#pragma once

#include "contracts/launcher.h"
#include "host/framework/open_wizard.h"

namespace Tamrivo
{

class HostApplication;

/// Runs the wizards "LocusEditor" and "SaveLocusTagAs" in the front end. A wizard may be started
/// from within another one.
class HostLauncher : public Launcher
{
public:
    explicit HostLauncher(HostApplication& host) : m_host(host) {}

    std::shared_ptr<LauncherResult> Start(std::string_view wizard,
                                          const std::shared_ptr<ParameterCollection>& parameters,
                                          const std::shared_ptr<BusinessObject>&, std::int32_t mode,
                                          std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                          std::int32_t, std::string_view, std::int32_t,
                                          std::int32_t) override;

    /// Opens a wizard as `Start` does, and leaves its end to the caller.
    OpenWizard Open(std::string_view wizard,
                    const std::shared_ptr<ParameterCollection>& parameters);

private:
    HostApplication& m_host;
};

} // namespace Tamrivo
