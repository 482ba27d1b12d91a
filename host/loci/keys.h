#pragma once

#include "core/text.h"

#include <string>
#include <string_view>

namespace Tamrivo
{

/// What two tags or names have in common that differ only in case and trailing blanks.
inline std::string LookupKey(std::string_view name)
{
    return FoldCase(TrimRight(name));
}

} // namespace Tamrivo
