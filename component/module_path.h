#pragma once

#include <filesystem>

namespace Tamrivo
{

/// Full path of the loaded module that holds this code.
std::filesystem::path ModulePath();

} // namespace Tamrivo
