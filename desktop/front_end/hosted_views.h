#pragma once

class QWidget;

namespace Tamrivo
{

class Actions;
class Control;
class ControlView;

/// Makes the view of a control that this program's host brings along: a grid or the allele pane.
/// Null for any other.
ControlView* NewHostedView(Control& control, QWidget& parent, const Actions& actions);

} // namespace Tamrivo
