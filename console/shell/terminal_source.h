#pragma once

#include "console/shell/line_source.h"

#include <filesystem>
#include <memory>

namespace Tamrivo
{

/// Lines that a person edits at the terminal, with completion by the Tab key and a history that is
/// kept in a file. Ctrl+C drops the line, Ctrl+D on an empty line ends the input.
class TerminalSource : public LineSource
{
public:
    /// @param historyFile made when it is missing; where that fails the history isn't kept
    explicit TerminalSource(const std::filesystem::path& historyFile);
    ~TerminalSource() override;

    std::optional<std::string> Next(const std::string& prompt) override;
    std::string Place() const override { return "terminal"; }
    bool IsInteractive() const override { return true; }
    void SetCompleter(const Completer& completer) override;

private:
    struct Editor;
    std::unique_ptr<Editor> m_editor;
};

} // namespace Tamrivo
