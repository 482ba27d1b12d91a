#pragma once

#include <filesystem>

namespace Tamrivo
{

/// Full path of the loaded module that holds this code, as it was when it was loaded. Raises
/// `std::runtime_error` when it is not known.
const std::filesystem::path& ModulePath();

} // namespace Tamrivo
