#pragma once

#include "controls/control.h"
#include "core/event.h"

#include <cstdint>
#include <optional>
#include <string>

namespace Tamrivo
{

// An ampersand in a caption marks the letter that is the access key and isn't shown.

class CheckBox : public Control
{
public:
    struct Settings
    {
        std::string Caption;
        bool Enabled = true;
        bool Visible = true;
    };

    CheckBox(const Declaration& declaration, const Settings& settings);

    const std::string& Caption() const { return m_caption; }
    /// 0 off, 1 on.
    std::int32_t Value() const { return m_value; }
    /// Raises `Click` if the value changes.
    void SetValue(std::int32_t value)
    {
        if (Assign(m_value, value))
            Click();
    }

    /// A box that the form neither shows nor enables is never brought back: no tab stop.
    bool IsTabStop() const override { return m_tabStop; }
    Tamrivo::Properties Properties() const override;

    Event<> Click;

private:
    std::string m_caption;
    std::int32_t m_value = 0;
    bool m_tabStop;
};

/// One of several options in a container, of which at most one is chosen.
class OptionButton : public Control
{
public:
    struct Settings
    {
        std::string Caption;
    };

    OptionButton(const Declaration& declaration, const Settings& settings)
        : Control(declaration), m_caption(settings.Caption)
    {}

    const std::string& Caption() const { return m_caption; }
    bool Value() const { return m_value; }
    /// True chooses this option, clears the others in its container, and raises `Click` if it
    /// wasn't chosen before.
    void SetValue(bool value);

    bool IsTabStop() const override { return true; }
    Tamrivo::Properties Properties() const override;

    Event<> Click;

private:
    std::string m_caption;
    bool m_value = false;
};

class CommandButton : public Control
{
public:
    struct Settings
    {
        std::string Caption;
        bool Enabled = true;
        std::string ToolTipText = {};
        std::optional<Tamrivo::Font> Font = {};
    };

    CommandButton(const Declaration& declaration, const Settings& settings);

    const std::string& Caption() const { return m_caption; }
    const std::string& ToolTipText() const { return m_toolTipText; }
    /// None: the default font.
    const std::optional<Tamrivo::Font>& Font() const { return m_font; }

    bool IsTabStop() const override { return true; }
    Tamrivo::Properties Properties() const override;

    Event<> Click;

private:
    std::string m_caption;
    std::string m_toolTipText;
    std::optional<Tamrivo::Font> m_font;
};

} // namespace Tamrivo
