#include "host/library/folded_texts.h"

#include "core/text.h"

#include <algorithm>

namespace Tamrivo
{

void FoldedTexts::AddPart(std::string_view part)
{
    m_text += Separator;
    const bool isAscii =
        std::ranges::all_of(part, [](char byte) { return static_cast<signed char>(byte) >= 0; });
    if (!isAscii)
    {
        m_text += FoldCase(part);
        return;
    }
    for (const char letter : part)
        m_text += letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

} // namespace Tamrivo
