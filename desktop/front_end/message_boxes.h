#pragma once

#include "contracts/message_box.h"
#include "core/error.h"

#include <string>

class QString;
class QWidget;

namespace Tamrivo
{

/// Shows a message box. `kind` is a `MessageKind`, which fixes icon and buttons; the first button
/// is the default one, and Escape answers No.
MessageAnswer ShowMessageBox(QWidget* parent, const std::string& text, std::int32_t kind,
                             const std::string& title);

/// What a person does about a failure.
enum class FailureAnswer
{
    Ok,
    OpenAgain, ///< Wants the store opened again, now that it is back.
};

/// Tells of a failure in plain words. What is of use to whoever looks into it stands behind a
/// button for details, and another one opens the log.
/// @param place where the failure was caught; may be empty
/// @param isStoreLost offers to open the store again
FailureAnswer ShowFailureBox(QWidget* parent, const ErrorRecord& error, const QString& place,
                             bool isStoreLost);

/// Opens the program's log in the desktop's own program for it.
void OpenLog(QWidget* parent);

} // namespace Tamrivo
