#pragma once

#include <filesystem>

namespace Tamrivo
{

/// The program's own folder in the XDG state directory, for the log and histories. Not created by
/// asking.
std::filesystem::path StateDirectory();
/// The program's log in that folder.
std::filesystem::path LogFile();

/// Makes the environment's locale the `TextLocale`. A locale that isn't installed leaves the
/// classic one. A program calls it once, at its start.
void UseEnvironmentLocale();

} // namespace Tamrivo
