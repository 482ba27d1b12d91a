#pragma once

namespace Tamrivo
{

/// The character's partner in Unicode's simple case folding (statuses C and S of CaseFolding.txt,
/// Unicode 14), or the character itself.
char32_t FoldCase(char32_t character);

} // namespace Tamrivo
