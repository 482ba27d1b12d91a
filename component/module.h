#pragma once

#include "component/com.h"
#include "contracts/host.h"

#include <atomic>
#include <optional>

namespace Tamrivo
{

/// What all class objects of the loaded module share.
struct Module
{
    std::atomic<Host*> CurrentHost = nullptr;
    /// Objects alive and locks held: the module can be unloaded at 0.
    std::atomic<long> InUse = 0;
    /// What the last call that gave a failing code failed of.
    std::optional<ErrorRecord> LastFailure;
};

Module& TheModule();

} // namespace Tamrivo
