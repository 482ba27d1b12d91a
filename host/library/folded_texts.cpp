#include "host/library/folded_texts.h"

#include "core/text.h"

namespace Tamrivo
{

void FoldedTexts::AddPart(std::string_view part)
{
    m_text += Separator;
    m_text += FoldCase(part);
}

} // namespace Tamrivo
