#include "console/shell/line_source.h"

#include "core/error.h"

#include <utility>

namespace Tamrivo
{

StreamSource::StreamSource(std::istream& stream, std::string name)
    : m_stream(stream), m_name(std::move(name))
{}

std::optional<std::string> StreamSource::Next(const std::string& /*prompt*/)
{
    std::string line;
    if (!std::getline(m_stream, line))
    {
        if (m_stream.bad())
            throw Failure(ErrorNumber::Unexpected, "Shell", "Cannot read " + m_name);
        return std::nullopt;
    }
    ++m_number;

    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (m_number == 1 && line.starts_with(byteOrderMark))
        line.erase(0, byteOrderMark.size());
    if (line.ends_with('\r'))
        line.pop_back();
    return line;
}

std::string StreamSource::Place() const
{
    return m_name + ":" + std::to_string(m_number);
}

} // namespace Tamrivo
