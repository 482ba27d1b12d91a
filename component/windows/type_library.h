#pragma once

#include "component/com.h"

namespace Tamrivo
{

/// The description of a dual interface in the type library that the module carries, with a
/// reference for the caller. Gives the platform's result code where it can't be loaded.
HRESULT FindTypeInfo(REFIID id, ITypeInfo** info);

} // namespace Tamrivo
