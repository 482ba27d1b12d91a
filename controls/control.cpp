#include "controls/user_control.h"

#include <algorithm>

namespace Tamrivo
{

Control::Control(const Declaration& declaration)
    : m_name(declaration.Index ? declaration.Name + "(" + std::to_string(*declaration.Index) + ")"
                               : declaration.Name),
      m_parent(declaration.In),
      m_tabIndex(declaration.TabIndex),
      m_place(declaration.Place),
      m_index(declaration.Index)
{
    m_parent.m_children.push_back(this);
    m_parent.Form().m_controls.push_back(this);
}

UserControl& Control::Form() const
{
    return m_parent.Form();
}

void Control::NotifyChanged()
{
    Form().ControlChanged(*this);
}

Tamrivo::Properties Control::Properties() const
{
    return {{"Name", m_name},         {"Enabled", m_enabled},    {"Visible", m_visible},
            {"TabIndex", m_tabIndex}, {"Left", m_place.Left},    {"Top", m_place.Top},
            {"Width", m_place.Width}, {"Height", m_place.Height}};
}

Control* UserControl::Find(std::string_view name) const
{
    const auto found = std::ranges::find(m_controls, name, &Control::Name);
    return found == m_controls.end() ? nullptr : *found;
}

std::vector<Control*> UserControl::InTabOrder() const
{
    std::vector<Control*> ordered = m_controls;
    std::ranges::stable_sort(ordered, {}, [](const Control* control) {
        return static_cast<unsigned>(control->TabIndex());
    });
    return ordered;
}

std::vector<Control*> UserControl::FocusOrder() const
{
    std::vector<Control*> stops = InTabOrder();
    std::erase_if(stops, [](const Control* control) { return !control->IsTabStop(); });
    return stops;
}

} // namespace Tamrivo
