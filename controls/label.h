#pragma once

#include "controls/control.h"

#include <optional>
#include <string>

namespace Tamrivo
{

/// A text that can't be edited. Disabled, it is greyed.
class Label : public Control
{
public:
    struct Settings
    {
        std::string Caption;
        std::optional<Tamrivo::Font> Font = {};
    };

    Label(const Declaration& declaration, const Settings& settings)
        : Control(declaration), m_caption(settings.Caption), m_font(settings.Font)
    {}

    const std::string& Caption() const { return m_caption; }
    void SetCaption(const std::string& caption) { Assign(m_caption, caption); }
    /// None: the default font.
    const std::optional<Tamrivo::Font>& Font() const { return m_font; }

    Tamrivo::Properties Properties() const override;

private:
    std::string m_caption;
    std::optional<Tamrivo::Font> m_font;
};

} // namespace Tamrivo
