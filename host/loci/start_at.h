#pragma once

#include <string>
#include <string_view>

namespace Tamrivo
{

// Alphabetic allele names in their order: "A" to "Z", then "AA" to "AZ", "BA" and so on.
//
// Only the letters A to Z at the end of a text are stepped; what stands before them stays. Each
// keeps its case, and a letter that comes to the front takes the case of the one behind it.

/// The name one step after the text. A text that ends in no such letter begins a series of its own:
/// "A" is put at its end.
std::string NextStartAt(std::string_view text);

/// The name one step before the text. There is nothing before "A", nor before a text that ends in
/// no such letter: they stay.
std::string PreviousStartAt(std::string_view text);

} // namespace Tamrivo
