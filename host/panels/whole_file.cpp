#include "host/panels/whole_file.h"

#include "core/error.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <list>
#include <system_error>

namespace Tamrivo
{

namespace
{

namespace fs = std::filesystem;

[[noreturn]] void RefuseToWrite(const std::string& path, const std::string& why)
{
    throw Failure(ErrorNumber::InvalidArgument, "PanelFile",
                  "The file \"" + path + "\" can't be written: " + why);
}

/// A file beside the one that it replaces, which is kept until all have been replaced.
class Replacement
{
public:
    explicit Replacement(const FileToWrite& file) : m_file(file)
    {
        std::error_code error;
        m_target = fs::exists(file.Path, error) ? fs::canonical(file.Path) : fs::path(file.Path);
        // A device or a pipe is written as it stands.
        m_isDirect = fs::exists(m_target, error) && !fs::is_regular_file(m_target, error);
    }

    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    ~Replacement()
    {
        std::error_code error;
        if (m_isReplaced && !m_isKept)
            TakeBack(error);
        if (!m_isDirect)
        {
            fs::remove(Beside(".part"), error);
            fs::remove(Beside(".before"), error);
        }
    }

    bool IsFor(const Replacement& other) const { return m_target == other.m_target; }

    void Write() const
    {
        errno = 0;
        std::ofstream out(m_isDirect ? m_target : Beside(".part"), std::ios::binary);
        if (out)
            m_file.Write(out);
        out.close();
        if (!out)
            RefuseToWrite(m_file.Path, std::generic_category().message(errno));
    }

    /// @param isAlone no other file is replaced after this one
    void Replace(bool isAlone)
    {
        if (m_isDirect)
            return;
        std::error_code error;
        m_hadOne = fs::exists(m_target, error);
        if (m_hadOne && !isAlone)
            fs::copy_file(m_target, Beside(".before"), fs::copy_options::overwrite_existing, error);
        if (!error)
            fs::rename(Beside(".part"), m_target, error);
        if (error)
            RefuseToWrite(m_file.Path, error.message());
        m_isReplaced = true;
    }

    /// The others have been replaced as well.
    void Keep() { m_isKept = true; }

private:
    fs::path Beside(const char* suffix) const
    {
        fs::path path = m_target;
        return path += suffix;
    }

    void TakeBack(std::error_code& error) const
    {
        if (m_hadOne)
            fs::rename(Beside(".before"), m_target, error);
        else
            fs::remove(m_target, error);
    }

    const FileToWrite& m_file;
    fs::path m_target;
    bool m_isDirect = false;
    bool m_hadOne = false;
    bool m_isReplaced = false;
    bool m_isKept = false;
};

} // namespace

void WriteWholeFiles(const std::vector<FileToWrite>& files)
{
    std::list<Replacement> replacements;
    for (const FileToWrite& file : files)
    {
        const Replacement& added = replacements.emplace_back(file);
        if (&added != &replacements.front() && added.IsFor(replacements.front()))
            RefuseToWrite(file.Path, "it would be written twice; give two names");
        added.Write();
    }
    for (Replacement& replacement : replacements)
        replacement.Replace(files.size() == 1);
    for (Replacement& replacement : replacements)
        replacement.Keep();
}

void WriteWholeFile(const std::string& path, const std::function<void(std::ostream&)>& write)
{
    WriteWholeFiles({{path, write}});
}

} // namespace Tamrivo
