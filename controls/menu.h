#pragma once

#include "controls/frames.h"
#include "core/event.h"

#include <string>

namespace Tamrivo
{

/// A top-level menu, shown by `UserControl::PopupMenu`. Its items are its children.
class Menu : public ContainerControl
{
public:
    struct Settings
    {
        std::string Caption;
        bool Visible = true;
    };

    Menu(const Declaration& declaration, const Settings& settings)
        : ContainerControl(declaration), m_caption(settings.Caption)
    {
        SetVisible(settings.Visible);
    }

    const std::string& Caption() const { return m_caption; }
    Tamrivo::Properties Properties() const override;

private:
    std::string m_caption;
};

class MenuItem : public Control
{
public:
    struct Settings
    {
        std::string Caption;
        bool Separator = false;
    };

    MenuItem(const Declaration& declaration, const Settings& settings)
        : Control(declaration), m_caption(settings.Caption), m_separator(settings.Separator)
    {}

    const std::string& Caption() const { return m_caption; }
    bool IsSeparator() const { return m_separator; }
    Tamrivo::Properties Properties() const override;

    Event<> Click;

private:
    std::string m_caption;
    bool m_separator;
};

} // namespace Tamrivo
