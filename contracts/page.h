#pragma once

#include "contracts/parameters.h"
#include "core/event.h"

#include <memory>

namespace Tamrivo
{

/// Where the panes of a page stood last; the library doesn't look into it.
class PanePositions
{
public:
    virtual ~PanePositions() = default;
};

/// The framework's side of a page. The page creates it, answers its events and holds it; the
/// framework reaches it through `IPageAccess`.
///
/// Order of the events: Initialize, any number of Activate, Deactivate and Validate, then Save if
/// the wizard wasn't cancelled.
class PageBase
{
public:
    virtual ~PageBase() = default;

    Event<const std::shared_ptr<PanePositions>&> Initialize;
    Event<> Activate;
    Event<> Deactivate;
    Event<bool&> Validate; ///< The page answers whether its content is valid.
    Event<> Save;

    /// The collection that was given to `Launcher::Start`.
    virtual const std::shared_ptr<ParameterCollection>& Parameters() = 0;
    /// Makes the framework raise `Validate`.
    virtual void PageChanged() = 0;
};

/// A page of a wizard.
class IPageAccess
{
public:
    virtual ~IPageAccess() = default;
    virtual std::shared_ptr<PageBase> Page() = 0;
};

} // namespace Tamrivo
