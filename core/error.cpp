#include "core/error.h"

namespace Tamrivo
{

ErrorRecord CurrentError()
{
    try
    {
        throw;
    }
    catch (const Failure& failure)
    {
        return failure.Record();
    }
    catch (const std::exception& exception)
    {
        return {ErrorNumber::Unexpected, "Tamrivo", exception.what(), {}, 0};
    }
}

} // namespace Tamrivo
