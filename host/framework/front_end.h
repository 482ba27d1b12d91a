#pragma once

#include "contracts/message_box.h"
#include "core/error.h"

#include <cstdint>
#include <functional>
#include <string>

namespace Tamrivo
{

class Menu;
class UserControl;
class WizardSession;

/// A failure that a guarded procedure of the library has caught.
struct FailureReport
{
    std::string ClassName;
    std::string ProcedureName;
    ErrorRecord Error;
    bool Final = false; ///< The failure ends there: no caller will see it.
};

/// What the host asks of the program that a person sits at. Each call that shows something returns
/// once the person is done with it; whatever happens meanwhile arrives on the same thread.
class FrontEnd
{
public:
    virtual ~FrontEnd() = default;

    /// Runs the opening of a wizard's page, which may take its time. A front end in which the
    /// person can cancel it lets `Cancelled` pass: the page isn't shown then, and the wizard's
    /// caller sees the same.
    virtual void RunOpening(const std::function<void()>& open) { open(); }

    /// Shows the wizard's page and returns when `wizard.HasEnded()`.
    virtual void RunWizard(WizardSession& wizard) = 0;

    /// Shows a popup menu of `form` at the pointer. An item that the person picks is clicked
    /// through `User::Click` before the call returns.
    virtual void ShowMenu(UserControl& form, Menu& menu) = 0;

    /// Shows a message box. `kind` is a `MessageKind`, which fixes icon and buttons.
    virtual MessageAnswer ShowMessage(const std::string& text, std::int32_t kind,
                                      const std::string& title) = 0;

    /// Tells of a failure that was caught inside the library; it has been logged already.
    virtual void ShowReport(const FailureReport& report) = 0;

    /// Tells of a failure that reached the host itself; it has been logged already.
    virtual void ShowFailure(const ErrorRecord& error) = 0;
};

} // namespace Tamrivo
