#include "core/process.h"

#ifdef _WIN32
#include <process.h>
#else
#include <unistd.h>
#endif

namespace Tamrivo
{

std::int32_t ProcessNumber()
{
#ifdef _WIN32
    return _getpid();
#else
    return getpid();
#endif
}

} // namespace Tamrivo
