#pragma once

namespace Tamrivo
{

/// Whether failures are to stop for a debugger: the environment's `TAMRIVO_DEBUG` says 1. That the
/// process is traced doesn't tell, since tracers of other kinds end it at a stop.
bool IsDebuggerMeant();

/// Stops for the debugger that is attached, and gives true once it lets the process go on. False
/// without one.
bool StopForDebugger();

} // namespace Tamrivo
