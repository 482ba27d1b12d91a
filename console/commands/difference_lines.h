#pragma once

#include "host/store/content_difference.h"

#include <ostream>
#include <string>
#include <vector>

namespace Tamrivo
{

/// Prints a line each: what it is, the old and the new value.
void PrintDifferences(std::ostream& out, const std::vector<ContentDifference>& differences,
                      const std::string& indent);

/// The text with what would break the line written as its escape.
std::string OneLine(const std::string& text);

} // namespace Tamrivo
