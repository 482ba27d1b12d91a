#include "console/shell/terminal_source.h"

#include <histedit.h>

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <system_error>

namespace Tamrivo
{

namespace
{

constexpr int historyLength = 1000;

/// While it lives, Ctrl+C interrupts the reading of a line instead of ending the program.
class InterruptibleRead
{
public:
    InterruptibleRead()
    {
        struct sigaction action = {};
        action.sa_handler = [](int) {};
        sigaction(SIGINT, &action, &m_former);
    }
    ~InterruptibleRead() { sigaction(SIGINT, &m_former, nullptr); }

private:
    struct sigaction m_former = {};
};

/// What all the words begin with.
std::string CommonStart(const std::vector<std::string>& words)
{
    std::string start = words.front();
    for (const std::string& word : words)
    {
        const auto [end, ignored] = std::ranges::mismatch(start, word);
        start.erase(end, start.end());
    }
    return start;
}

} // namespace

struct TerminalSource::Editor
{
    explicit Editor(const std::filesystem::path& file)
        : HistoryFile(file), Line(el_init("tamrivo", stdin, stdout, stderr)), Past(history_init())
    {
        HistEvent event;
        history(Past, &event, H_SETSIZE, historyLength);
        history(Past, &event, H_SETUNIQUE, 1);
        history(Past, &event, H_LOAD, HistoryFile.c_str());

        el_set(Line, EL_CLIENTDATA, this);
        el_set(Line, EL_PROMPT, PromptOf);
        el_set(Line, EL_EDITOR, "emacs");
        el_set(Line, EL_HIST, history, Past);
        el_set(Line, EL_ADDFN, "complete", "Complete the word", OnTab);
        el_set(Line, EL_BIND, "^I", "complete", nullptr);
        el_set(Line, EL_BIND, "^R", "em-inc-search-prev", nullptr);
    }

    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    ~Editor()
    {
        el_end(Line);
        history_end(Past);
    }

    void Remember(const std::string& line)
    {
        HistEvent event;
        history(Past, &event, H_ENTER, line.c_str());
        std::error_code ignored;
        std::filesystem::create_directories(HistoryFile.parent_path(), ignored);
        history(Past, &event, H_SAVE, HistoryFile.c_str());
    }

    static Editor& Of(EditLine* line)
    {
        void* editor = nullptr;
        el_get(line, EL_CLIENTDATA, &editor);
        return *static_cast<Editor*>(editor);
    }

    static char* PromptOf(EditLine* line) { return Of(line).Prompt.data(); }

    static unsigned char OnTab(EditLine* line, int)
    {
        // No exception may cross the line editor, which is written in C.
        try
        {
            return Of(line).CompleteWord();
        }
        catch (...)
        {
            return CC_REFRESH_BEEP;
        }
    }

    unsigned char CompleteWord()
    {
        const LineInfo* info = el_line(Line);
        const std::string_view before(info->buffer,
                                      static_cast<std::size_t>(info->cursor - info->buffer));
        const std::size_t typed = before.size() - (before.find_last_of(" \t") + 1);
        const auto words = Complete ? Complete(before) : std::vector<std::string>{};
        if (words.empty())
            return CC_REFRESH_BEEP;

        std::string rest = CommonStart(words).substr(typed);
        if (words.size() == 1)
            rest += ' ';
        if (!rest.empty())
        {
            el_insertstr(Line, rest.c_str());
            return CC_REFRESH;
        }
        std::fputc('\n', stdout);
        for (const std::string& word : words)
            std::fprintf(stdout, "%s  ", word.c_str());
        std::fputc('\n', stdout);
        return CC_REDISPLAY;
    }

    std::filesystem::path HistoryFile;
    EditLine* Line;
    ::History* Past;
    std::string Prompt;
    Completer Complete;
};

TerminalSource::TerminalSource(const std::filesystem::path& historyFile)
{
    // The editor reads characters of the terminal's encoding, and asks the C library for it.
    std::setlocale(LC_CTYPE, "");
    m_editor = std::make_unique<Editor>(historyFile);
}

TerminalSource::~TerminalSource() = default;

std::optional<std::string> TerminalSource::Next(const std::string& prompt)
{
    const InterruptibleRead interruptible;
    m_editor->Prompt = prompt;
    int count = 0;
    errno = 0;
    const char* text = el_gets(m_editor->Line, &count);
    if (!text || count <= 0)
    {
        std::fputc('\n', stdout);
        if (errno == EINTR)
            return "";
        return std::nullopt;
    }
    std::string line(text, static_cast<std::size_t>(count));
    line.erase(std::min(line.find_last_not_of("\r\n") + 1, line.size()));
    if (!line.empty())
        m_editor->Remember(line);
    return line;
}

void TerminalSource::SetCompleter(const Completer& completer)
{
    m_editor->Complete = completer;
}

} // namespace Tamrivo
