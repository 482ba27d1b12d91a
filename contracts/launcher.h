#pragma once

#include "contracts/parameters.h"

#include <memory>
#include <string_view>

namespace Tamrivo
{

/// How a wizard ended.
class LauncherResult
{
public:
    virtual ~LauncherResult() = default;
    /// True when the wizard wasn't completed.
    virtual bool Cancelled() const = 0;
};

/// Runs the host's wizards.
class Launcher
{
public:
    virtual ~Launcher() = default;

    /// Runs a wizard and returns when it has ended; its page events arrive meanwhile.
    /// The arguments without a name never vary: no object, five times -1, an empty text, 0 and 0.
    /// Raises `ErrorNumber::InvalidArgument` for an unknown wizard and passes on what its page
    /// raises at its opening.
    virtual std::shared_ptr<LauncherResult> Start(
        std::string_view wizard, const std::shared_ptr<ParameterCollection>& parameters,
        const std::shared_ptr<BusinessObject>&, std::int32_t mode, std::int32_t, std::int32_t,
        std::int32_t, std::int32_t, std::int32_t, std::string_view, std::int32_t, std::int32_t) = 0;
};

/// A wizard and the mode in which it is started.
struct Wizard
{
    std::string_view Name;
    std::int32_t Mode;
};

inline constexpr Wizard LocusEditorWizard{"LocusEditor", -1};
inline constexpr Wizard SaveAsWizard{"SaveLocusTagAs", 1};

inline std::shared_ptr<LauncherResult> StartWizard(
    Launcher& launcher, const Wizard& wizard,
    const std::shared_ptr<ParameterCollection>& parameters)
{
    return launcher.Start(wizard.Name, parameters, nullptr, wizard.Mode, -1, -1, -1, -1, -1, "", 0,
                          0);
}

} // namespace Tamrivo
