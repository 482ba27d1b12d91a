#include "console/shell/shell.h"
#include "tests/fakes/temporary_directory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

// A transcript is what a person sees at the terminal: the commands behind "> ", and what the shell
// prints in between. Each file of transcripts/ is played on a new store, and the shell has to print
// the same again.

namespace Tamrivo
{

namespace
{

/// Gives the commands of a transcript and echoes them into the output.
class TranscriptSource : public LineSource
{
public:
    TranscriptSource(std::istream& transcript, std::ostream& out)
        : m_transcript(transcript), m_out(out)
    {}

    std::optional<std::string> Next(const std::string&) override
    {
        for (std::string line; std::getline(m_transcript, line);)
        {
            if (!line.starts_with("> "))
                continue;
            m_out << line << '\n';
            return line.substr(2);
        }
        m_out << "end of input\n";
        return std::nullopt;
    }

    std::string Place() const override { return "transcript"; }

private:
    std::istream& m_transcript;
    std::ostream& m_out;
};

std::shared_ptr<Locus> AddLocus(Store& store, const std::string& tag, std::int32_t shortest)
{
    auto locus = CreateObject<Locus>(store.Manager(), "Locus");
    locus->SetLocusTag(tag);
    locus->SetIsCurrent(true);
    locus->FragStart = shortest;
    locus->FragEnd = shortest + 12;
    locus->ShortestAlleleSize = shortest;
    locus->RepeatsInShortestAllele = "10";
    locus->GenerateAlleles();
    return locus;
}

void Fill(Store& store)
{
    for (const auto& [tag, shortest] :
         {std::pair{"D2S441", 100}, {"D3S1358", 120}, {"D12S391", 140}, {"TH01", 160}})
        store.Manager().Save(*AddLocus(store, tag, shortest), true);
    const auto broken = AddLocus(store, "Broken", 180);
    broken->AlleleNamingConventionTypeID = 7;
    store.Manager().Save(*broken, true);
}

std::string ReadFile(const std::filesystem::path& path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string WithoutDates(const std::string& text)
{
    static const std::regex date(R"(\d\d/\d\d/\d\d \d\d:\d\d:\d\d)");
    return std::regex_replace(text, date, "DATE");
}

std::vector<std::string> TranscriptNames()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(TRANSCRIPTS))
        names.push_back(entry.path().stem().string());
    return names;
}

class Transcript : public testing::TestWithParam<std::string>
{};

TEST_P(Transcript, PlaysAgain)
{
    const Fakes::TemporaryDirectory directory;
    Store store(directory / "store.sqlite");
    Fill(store);

    const std::string expected =
        ReadFile(std::filesystem::path(TRANSCRIPTS) / (GetParam() + ".txt"));
    std::istringstream transcript(expected);
    std::ostringstream out;
    TranscriptSource source(transcript, out);
    Shell(store, source, out, out, AfterError::KeepGoing).Run();
    EXPECT_EQ(WithoutDates(out.str()), expected);
}

INSTANTIATE_TEST_SUITE_P(Shell, Transcript, testing::ValuesIn(TranscriptNames()),
                         [](const auto& test) { return test.param; });

} // namespace

} // namespace Tamrivo
