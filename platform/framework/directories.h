#pragma once

#include <filesystem>
#include <string>

namespace Tamrivo
{

// Where the user's files stand. Nothing is created by asking.

/// Where the store is unless somebody says otherwise: `TAMRIVO_STORE`, else a file in the XDG data
/// directory.
std::string DefaultStoreLocation();

/// The program's own folder in the XDG state directory, for the log and the shell's history.
std::filesystem::path StateDirectory();

} // namespace Tamrivo
