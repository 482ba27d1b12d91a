#include "editor/field_number.h"

#include "core/error.h"
#include "core/numbers.h"

namespace Tamrivo
{

std::int32_t IntegerIn(const TextField& field)
{
    try
    {
        return ToInteger(field.Text());
    }
    catch (const Failure& failure)
    {
        ErrorRecord record = failure.Record();
        record.Description = field.Name() + ": " + record.Description;
        throw Failure(record);
    }
}

} // namespace Tamrivo
