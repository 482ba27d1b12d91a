#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

using Words = std::vector<std::string>;

/// The words of a line of the shell: separated by blanks or tabs, a word in double quotes with the
/// escapes \" \\ \t \r \n. A comment line and an empty one have none. Raises `User::Refusal` for
/// quotes and escapes that don't go together and for text that isn't UTF-8.
Words SplitWords(std::string_view line);

/// The text in double quotes, with the escapes that `SplitWords` reads.
std::string Quoted(std::string_view text);

/// The text with tabs and line ends as escapes, so that it stays in its column and its line.
std::string OnOneLine(std::string_view text);

} // namespace Tamrivo
