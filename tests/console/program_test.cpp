#include "console/program.h"
#include "tests/fakes/temporary_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace Tamrivo
{

namespace
{

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class Program : public testing::Test
{
protected:
    std::string Path(const std::string& name) const { return m_directory / name; }

    std::string Write(const std::string& name, const std::string& content) const
    {
        std::ofstream(Path(name)) << content;
        return Path(name);
    }

    int Run(const std::vector<std::string>& arguments, const std::string& input = {})
    {
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        const int status = RunProgram(arguments, in, out, err);
        m_out = out.str();
        m_err = err.str();
        return status;
    }

    int RunShell(const std::string& input)
    {
        return Run({"shell", "--store", Path("loci.sqlite")}, input);
    }

    Fakes::TemporaryDirectory m_directory;
    std::string m_out;
    std::string m_err;
};

TEST_F(Program, ExplainsItself)
{
    EXPECT_EQ(Run({"--version"}), 0);
    EXPECT_THAT(m_out, StartsWith("tamrivo "));
    EXPECT_EQ(Run({"shell", "--help"}), 0);
    EXPECT_THAT(m_out,
                AllOf(HasSubstr("--keep-going"), HasSubstr("--store"), HasSubstr("Examples")));
}

TEST_F(Program, AnswersAWrongCommandLineWithStatus2)
{
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, {"frobnicate"}, {"shell", "--nonsense"}, {"shell", "a", "b"}})
    {
        EXPECT_EQ(Run(arguments), 2);
        EXPECT_THAT(m_err, Not(IsEmpty()));
    }
}

TEST_F(Program, AnswersWhatCantBeOpenedWithStatus1AndLeavesItAlone)
{
    const std::string notAStore = Write("notes.txt", "not a store");
    EXPECT_EQ(Run({"shell", "--store", notAStore}, "loci\n"), 1);
    EXPECT_THAT(m_err, AllOf(StartsWith("tamrivo: "), HasSubstr("notes.txt")));
    EXPECT_EQ(std::filesystem::file_size(notAStore), 11U);

    EXPECT_EQ(Run({"shell", "--store", Path("loci.sqlite"), Path("missing.txt")}), 1);
    EXPECT_THAT(m_err, HasSubstr("missing.txt"));
    EXPECT_EQ(Run({"shell", "--store", Path("loci.sqlite"), m_directory.Path()}), 1);
    EXPECT_FALSE(std::filesystem::exists(Path("loci.sqlite")));
}

TEST_F(Program, StopsAScriptAtTheFirstError)
{
    const std::string script = Write("script.txt", "# a comment\nnew\n\nnonsense\nloci\n");
    EXPECT_EQ(Run({"shell", "--store", Path("loci.sqlite"), script}), 1);
    EXPECT_EQ(m_out, "wizard LocusEditor started\nwizard LocusEditor cancelled\n");
    EXPECT_THAT(m_err, StartsWith(script + ":4: error: there is no command \"nonsense\""));
}

TEST_F(Program, KeepsAScriptGoingAndRemembersTheError)
{
    const std::string script = Write("script.txt", "\xEF\xBB\xBFnonsense\r\npage\r\n\xFF\r\npage");
    EXPECT_EQ(Run({"shell", "--keep-going", "--store", Path("loci.sqlite"), script}), 1);
    EXPECT_EQ(m_out, "error: there is no command \"nonsense\"; help lists them all\nhost\n"
                     "error: the line is not UTF-8 text\nhost\n");
    EXPECT_THAT(m_err, IsEmpty());
}

TEST_F(Program, FindsAnEditChangedAfterARestart)
{
    EXPECT_EQ(RunShell("new\ntype txtLocusTag D3S1358\nfinish\n"), 0) << m_err;
    EXPECT_EQ(RunShell("edit d3s1358\ntype txtRepeat 9\nleave txtRepeat\nfinish\n"), 0) << m_err;
    EXPECT_EQ(RunShell("locus D3S1358\n"), 0) << m_err;
    EXPECT_THAT(m_out, AllOf(HasSubstr("LocusTag=\"D3S1358\"\n"), HasSubstr("RepeatLength=49\n")));
}

} // namespace

} // namespace Tamrivo
