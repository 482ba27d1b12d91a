#include "controls/buttons.h"

#include "controls/container.h"

namespace Tamrivo
{

CheckBox::CheckBox(const Declaration& declaration, const Settings& settings)
    : Control(declaration),
      m_caption(settings.Caption),
      m_tabStop(settings.Enabled && settings.Visible)
{
    SetEnabled(settings.Enabled);
    SetVisible(settings.Visible);
}

Tamrivo::Properties CheckBox::Properties() const
{
    auto properties = Control::Properties();
    properties.insert(properties.end(), {{"Caption", m_caption}, {"Value", m_value}});
    return properties;
}

void OptionButton::SetValue(bool value)
{
    if (m_value == value)
        return;
    // All options have their new state before anyone is told of the first.
    std::vector<OptionButton*> changed;
    for (Control* sibling : Parent().Children())
    {
        auto* option = dynamic_cast<OptionButton*>(sibling);
        if (value && option != nullptr && option->m_value)
            changed.push_back(option);
    }
    for (OptionButton* option : changed)
        option->m_value = false;
    m_value = value;
    changed.push_back(this);
    for (OptionButton* option : changed)
        option->NotifyChanged();
    if (value)
        Click();
}

Tamrivo::Properties OptionButton::Properties() const
{
    auto properties = Control::Properties();
    properties.insert(properties.end(), {{"Caption", m_caption}, {"Value", m_value}});
    return properties;
}

CommandButton::CommandButton(const Declaration& declaration, const Settings& settings)
    : Control(declaration),
      m_caption(settings.Caption),
      m_toolTipText(settings.ToolTipText),
      m_font(settings.Font)
{
    SetEnabled(settings.Enabled);
}

Tamrivo::Properties CommandButton::Properties() const
{
    auto properties = Control::Properties();
    properties.insert(properties.end(), {{"Caption", m_caption}, {"ToolTipText", m_toolTipText}});
    return properties;
}

} // namespace Tamrivo
