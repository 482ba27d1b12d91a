#pragma once

#include <functional>
#include <ostream>
#include <string>

namespace Tamrivo
{

/// Writes a file by `write(stream)`. One that stands there is replaced once the new one is
/// complete. Raises `ErrorNumber::InvalidArgument` when the file can't be written, and what `write`
/// raises; what stood there is then kept.
void WriteWholeFile(const std::string& path, const std::function<void(std::ostream&)>& write);

} // namespace Tamrivo
