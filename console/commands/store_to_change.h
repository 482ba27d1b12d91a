#pragma once

#include "console/commands/command.h"
#include "host/store/store.h"

namespace Tamrivo
{

/// The store of a command that changes it, with the command's reason. Raises `StoreError::ReadOnly`
/// before anything is tried, and what `Store::SetReason` raises.
struct StoreToChange : Store
{
    explicit StoreToChange(const Context& context) : Store(context.StoreLocation)
    {
        RequireWritable();
        SetReason(context.Reason);
    }
};

} // namespace Tamrivo
