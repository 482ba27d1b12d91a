#pragma once

#include "controls/control.h"
#include "core/event.h"

#include <cstdint>
#include <string>

namespace Tamrivo
{

/// Colours as the system numbers them.
namespace Color
{
inline constexpr std::int32_t WindowBackground = static_cast<std::int32_t>(0x80000005);
inline constexpr std::int32_t Yellow = 0x0000FFFF;
} // namespace Color

enum class Alignment
{
    Left = 0,
    Right = 1,
};

/// A field of one line of text.
class TextField : public Control
{
public:
    struct Settings
    {
        std::string Text = {};
        int MaxLength = 0; ///< Most characters that a person can enter; 0: no limit.
        Tamrivo::Alignment Alignment = Alignment::Left;
    };

    TextField(const Declaration& declaration, const Settings& settings)
        : Control(declaration),
          m_text(settings.Text),
          m_maxLength(settings.MaxLength),
          m_alignment(settings.Alignment)
    {}

    const std::string& Text() const { return m_text; }
    /// Replaces the whole content, not cut at `MaxLength`, and raises `Change` if it differs.
    void SetText(const std::string& text)
    {
        if (Assign(m_text, text))
            Change();
    }

    int MaxLength() const { return m_maxLength; }
    Tamrivo::Alignment Alignment() const { return m_alignment; }

    std::int32_t BackColor() const { return m_backColor; }
    void SetBackColor(std::int32_t color) { Assign(m_backColor, color); }
    const std::string& ToolTipText() const { return m_toolTipText; }
    void SetToolTipText(const std::string& text) { Assign(m_toolTipText, text); }

    bool IsTabStop() const override { return true; }
    Tamrivo::Properties Properties() const override;

    Event<> Change;
    /// A person has typed a key, which hasn't reached `Text` yet. The argument is the character's
    /// code, 8 for Backspace; a handler that sets it to 0 swallows the key.
    Event<std::int16_t&> KeyPress;
    Event<> LostFocus;

private:
    std::string m_text;
    int m_maxLength;
    Tamrivo::Alignment m_alignment;
    std::int32_t m_backColor = Color::WindowBackground;
    std::string m_toolTipText;
};

} // namespace Tamrivo
