#pragma once

namespace Tamrivo
{

/// Whether a debugger is attached to this process.
bool IsDebuggerAttached();

/// Stops for the debugger that is attached, and returns once it lets the process go on. Without a
/// debugger the process would end.
void StopForDebugger();

} // namespace Tamrivo
