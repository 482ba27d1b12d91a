#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace Tamrivo
{

/// A file, and what is written into it.
struct FileToWrite
{
    std::string Path;
    std::function<void(std::ostream&)> Write;
};

/// Writes files that belong together. What stands there is replaced once all the new ones are
/// complete, and a replacement that fails takes back those before it. Raises
/// `ErrorNumber::InvalidArgument` when a file can't be written or two have one path, and what
/// `Write` raises; what stood there is then kept.
void WriteWholeFiles(const std::vector<FileToWrite>& files);

/// Writes one file.
void WriteWholeFile(const std::string& path, const std::function<void(std::ostream&)>& write);

} // namespace Tamrivo
