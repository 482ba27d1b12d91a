#include "controls/frames.h"
#include "controls/label.h"
#include "controls/menu.h"
#include "controls/text_field.h"

namespace Tamrivo
{

namespace
{

Properties With(Properties properties, std::initializer_list<Properties::value_type> more)
{
    properties.insert(properties.end(), more);
    return properties;
}

} // namespace

Tamrivo::Properties TextField::Properties() const
{
    return With(Control::Properties(), {{"Text", m_text},
                                        {"MaxLength", m_maxLength},
                                        {"Alignment", static_cast<std::int32_t>(m_alignment)},
                                        {"BackColor", m_backColor},
                                        {"ToolTipText", m_toolTipText}});
}

Tamrivo::Properties Label::Properties() const
{
    return With(Control::Properties(), {{"Caption", m_caption}});
}

Tamrivo::Properties Frame::Properties() const
{
    return With(Control::Properties(), {{"Caption", m_caption}});
}

Tamrivo::Properties TabStrip::Properties() const
{
    return With(Control::Properties(), {{"Tab", m_tab}});
}

Tamrivo::Properties Menu::Properties() const
{
    return With(Control::Properties(), {{"Caption", m_caption}});
}

Tamrivo::Properties MenuItem::Properties() const
{
    return With(Control::Properties(), {{"Caption", m_caption}, {"Separator", m_separator}});
}

} // namespace Tamrivo
