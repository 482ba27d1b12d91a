#pragma once

#include "desktop/window/command.h"

namespace Tamrivo
{

class Workbench;

/// What commands can rely on at present.
Needs GivenBy(const Workbench& bench);

} // namespace Tamrivo
