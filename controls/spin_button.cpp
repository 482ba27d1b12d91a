#include "controls/spin_button.h"

#include "controls/text_field.h"
#include "core/numbers.h"

#include <algorithm>
#include <cmath>

namespace Tamrivo
{

namespace
{

/// The number that a step starts from.
double StartOfStep(const std::string& text, double low, double high)
{
    if (!IsNumeric(text))
        return low;
    const double value = ToDouble(text);
    if (std::floor(value) == value)
        return value;
    return std::abs(value - low) <= std::abs(value - high) ? low : high;
}

} // namespace

void SpinButton::Step(std::int64_t by)
{
    if (m_linked == nullptr)
        return;
    const auto [low, high] = std::minmax({double(m_min), double(m_max)});
    const double start = StartOfStep(m_linked->Text(), low, high);
    const double stepped = std::clamp(start + static_cast<double>(by), low, high);
    m_linked->SetText(IntegerText(static_cast<std::int32_t>(stepped)));
}

void SpinButton::StepUp()
{
    Step(m_increment);
    UpClick();
}

void SpinButton::StepDown()
{
    Step(-static_cast<std::int64_t>(m_increment));
    DownClick();
}

Tamrivo::Properties SpinButton::Properties() const
{
    auto properties = Control::Properties();
    properties.insert(properties.end(), {{"Linked", m_linked != nullptr ? m_linked->Name() : ""},
                                         {"Min", m_min},
                                         {"Max", m_max},
                                         {"Increment", m_increment},
                                         {"Value", m_value}});
    return properties;
}

} // namespace Tamrivo
