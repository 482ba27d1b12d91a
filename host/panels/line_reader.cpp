#include "host/panels/line_reader.h"

#include "core/error.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

constexpr std::size_t blockSize = 65536;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// One loop without branches, for many bytes at once.
bool IsPlainText(std::string_view bytes)
{
    // Below 0x7F are those from 1 to 0x7F.
    unsigned char most = 0;
    for (const char byte : bytes)
        most = std::max(most, static_cast<unsigned char>(byte - 1));
    return most < 0x7F;
}

} // namespace

bool LineReader::Fill()
{
    m_bytes.erase(0, m_start);
    m_start = 0;
    const std::size_t left = m_bytes.size();
    m_bytes.resize(left + blockSize);
    m_in.read(m_bytes.data() + left, blockSize);
    if (m_in.bad())
        throw Failure(ErrorNumber::InvalidArgument, "PanelFile",
                      "The file can't be read: reading has failed");
    m_bytes.resize(left + static_cast<std::size_t>(m_in.gcount()));
    m_isPlain = m_isPlain && IsPlainText(std::string_view(m_bytes).substr(left));
    if (!m_isBegun && m_bytes.starts_with(byteOrderMark))
        m_start = byteOrderMark.size();
    m_isBegun = true;
    return m_bytes.size() > left;
}

std::string_view LineReader::Head()
{
    if (m_bytes.size() - m_start < blockSize / 2)
        Fill();
    return std::string_view(m_bytes).substr(m_start);
}

bool LineReader::Next(std::string_view& line)
{
    if (!m_isBegun)
        Fill();
    for (std::size_t searched = 0;;)
    {
        const std::size_t end = m_bytes.find('\n', m_start + searched);
        const std::size_t length = std::min(end, m_bytes.size()) - m_start;
        m_isTooLong = length > LongestLine;
        if (m_isTooLong)
            return false;
        if (end != std::string::npos)
        {
            line = std::string_view(m_bytes).substr(m_start, length);
            m_start = end + 1;
            return true;
        }
        searched = length;
        if (Fill())
            continue;
        line = std::string_view(m_bytes).substr(m_start);
        m_start = m_bytes.size();
        return !line.empty();
    }
}

bool LineReader::ReadRest(std::string& text, std::size_t most)
{
    while (m_bytes.size() - m_start <= most && Fill())
    {}
    text.assign(m_bytes, m_start);
    return text.size() <= most;
}

} // namespace Tamrivo
