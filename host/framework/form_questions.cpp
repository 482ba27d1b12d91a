#include "host/framework/form_questions.h"

#include "controls/text_field.h"
#include "core/numbers.h"
#include "core/text.h"

#include <cmath>

namespace Tamrivo
{

bool HasKey(const Keyed& container, const std::string& key)
{
    return container.KeyExists(key) || container.KeyExists(TrimRight(key));
}

bool HoldsIntegerInRange(const TextField& field, std::int32_t low, std::int32_t high)
{
    if (!IsNumeric(field.Text()))
        return false;
    const double value = ToDouble(field.Text());
    return std::trunc(value) == value && low <= value && value <= high;
}

} // namespace Tamrivo
