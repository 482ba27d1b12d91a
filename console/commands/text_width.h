#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Tamrivo
{

/// Columns that the text takes on a terminal: 2 for wide East Asian characters and pictographs, 0
/// for marks that combine with the character before.
std::size_t TextWidth(std::string_view text);

/// The text with each control character and invalid byte replaced by U+FFFD, so that a terminal
/// takes none of it for a command.
std::string PrintableText(std::string_view text);

} // namespace Tamrivo
