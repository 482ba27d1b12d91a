#include "host/loci/repeat_name.h"

#include "core/text.h"

#include <charconv>

namespace Tamrivo
{

std::string RepeatName::Text() const
{
    return std::to_string(Repeats) + (Nucleotides > 0 ? "." + std::to_string(Nucleotides) : "");
}

std::optional<RepeatName> ReadRepeatName(std::string_view name)
{
    constexpr std::int32_t mostRepeats = 99'999;
    const std::string trimmed = Trim(name);
    const char* const end = trimmed.data() + trimmed.size();
    RepeatName read;
    const auto [after, error] = std::from_chars(trimmed.data(), end, read.Repeats);
    if (error != std::errc() || trimmed.front() == '-' || read.Repeats > mostRepeats)
        return std::nullopt;
    if (after == end)
        return read;

    std::string_view fraction(after, end);
    if (!fraction.starts_with('.'))
        return std::nullopt;
    fraction.remove_prefix(1);
    while (fraction.size() > 1 && fraction.ends_with('0'))
        fraction.remove_suffix(1);
    if (fraction.size() != 1 || fraction.front() < '0' || fraction.front() > '9')
        return std::nullopt;
    read.Nucleotides = fraction.front() - '0';
    return read;
}

} // namespace Tamrivo
