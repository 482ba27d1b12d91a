#pragma once

#include "controls/control.h"
#include "core/event.h"

#include <cstdint>

namespace Tamrivo
{

class TextField;

/// Two arrows, as a rule linked to a text field, whose number they step.
class SpinButton : public Control
{
public:
    struct Settings
    {
        TextField* Linked = nullptr; ///< Null: the arrows only raise their events.
        std::int32_t Min = 0;
        std::int32_t Max = 0;
        std::int32_t Increment = 1;
        std::int32_t Value = 0; ///< Initial value; a linked field's text counts instead.
        bool TabStop = true;
    };

    SpinButton(const Declaration& declaration, const Settings& settings)
        : Control(declaration),
          m_linked(settings.Linked),
          m_min(settings.Min),
          m_max(settings.Max),
          m_increment(settings.Increment),
          m_value(settings.Value),
          m_tabStop(settings.TabStop)
    {}

    const TextField* Linked() const { return m_linked; }
    std::int32_t Min() const { return m_min; }
    void SetMin(std::int32_t min) { Assign(m_min, min); }
    std::int32_t Max() const { return m_max; }
    void SetMax(std::int32_t max) { Assign(m_max, max); }

    /// A person's click on the upper or lower arrow. A linked field's number goes up or down by the
    /// increment and stops at the bounds; a field that holds no whole number starts from the bound
    /// nearest to it, or from `Min` when it holds no number at all.
    void StepUp();
    void StepDown();

    bool IsTabStop() const override { return m_tabStop; }
    Tamrivo::Properties Properties() const override;

    Event<> UpClick;
    Event<> DownClick;

private:
    void Step(std::int64_t by);

    TextField* m_linked;
    std::int32_t m_min;
    std::int32_t m_max;
    std::int32_t m_increment;
    std::int32_t m_value;
    bool m_tabStop;
};

} // namespace Tamrivo
