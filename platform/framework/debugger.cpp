#include "platform/framework/debugger.h"

#include <csignal>
#include <fstream>
#include <string>

namespace Tamrivo
{

bool IsDebuggerAttached()
{
    // Linux names the tracing process, 0 for none. Elsewhere there is no such file, and no answer.
    std::ifstream status("/proc/self/status");
    for (std::string key; status >> key; status.ignore(1000, '\n'))
    {
        int tracer = 0;
        if (key == "TracerPid:" && status >> tracer)
            return tracer != 0;
    }
    return false;
}

void StopForDebugger()
{
    std::raise(SIGTRAP);
}

} // namespace Tamrivo
