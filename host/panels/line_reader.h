#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <string_view>

namespace Tamrivo
{

/// The bytes of a file, read block by block. A byte order mark is passed over.
class LineReader
{
public:
    /// No line of a text that people exchange is longer, bytes.
    static constexpr std::size_t LongestLine = 1'000'000;

    /// @param in must outlive this object
    explicit LineReader(std::istream& in) : m_in(in) {}

    /// What the next bytes are: all that are left, or at least a block of them. They are still
    /// there to be read. Raises, as all of these, `ErrorNumber::InvalidArgument` when reading
    /// fails.
    std::string_view Head();

    /// Reads the next line, without its end. It stands until the next call. False at the end, and
    /// for a line that is too long.
    bool Next(std::string_view& line);
    bool IsTooLong() const { return m_isTooLong; }
    /// Whether all bytes so far are of ASCII and none is zero, so that no line needs a look.
    bool IsPlain() const { return m_isPlain; }

    /// Reads what is left. False when it is more than `most` bytes.
    bool ReadRest(std::string& text, std::size_t most);

private:
    /// Reads a block behind what is left. False at the end.
    bool Fill();

    std::istream& m_in;
    std::string m_bytes;
    std::size_t m_start = 0; ///< Of what is left.
    bool m_isBegun = false;
    bool m_isTooLong = false;
    bool m_isPlain = true;
};

} // namespace Tamrivo
