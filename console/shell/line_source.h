#pragma once

#include <functional>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tamrivo
{

/// Where the shell's lines come from.
class LineSource
{
public:
    virtual ~LineSource() = default;

    /// The next line without its end, or none at the end of the input. Raises a `Failure` when
    /// reading fails.
    virtual std::optional<std::string> Next(const std::string& prompt) = 0;
    /// Where the last line stood, for messages: "tour.txt:12".
    virtual std::string Place() const = 0;
    /// Whether a person types the lines and sees the answer to each.
    virtual bool IsInteractive() const { return false; }

    /// Gives the words that could take the place of the last word of the text before the cursor.
    /// Each begins as that word does. An exception means that there are none.
    using Completer = std::function<std::vector<std::string>(std::string_view beforeCursor)>;
    virtual void SetCompleter(const Completer&) {}
};

/// Lines of a script or of standard input.
class StreamSource : public LineSource
{
public:
    StreamSource(std::istream& stream, std::string name);

    std::optional<std::string> Next(const std::string& prompt) override;
    std::string Place() const override;

private:
    std::istream& m_stream;
    std::string m_name;
    int m_number = 0;
};

} // namespace Tamrivo
