#include "console/commands/aligned_table.h"
#include "console/commands/text_width.h"
#include "console/program.h"
#include "tests/fakes/temporary_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace Tamrivo
{

namespace
{

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

const std::string table = "Panel\tMarker\tAllele\tSize\tSize.Min\tSize.Max\tColor\tRepeat"
                          "\tMarker.Min\tMarker.Max\n"
                          "P\tD3S1358\t8\t94.05\t93.55\t94.55\tblue\t4\t92.01\t148.2\n"
                          "P\tTH01\t9.3\t175.5\t175\t175.9\tblue\t4\t148.21\t195\n"
                          "Q\tTH01\t9.3\t184.5\t184\t185\tgreen\t4\t159\t205\n";
const std::string purple = "Q\tSE33\t18\t232\t231.5\t232.5\tpurple\t4\t211\t270\n";

class Commands : public testing::Test
{
protected:
    std::string Path(const std::string& name) const { return m_directory / name; }

    std::string Write(const std::string& name, const std::string& content) const
    {
        std::ofstream(Path(name)) << content;
        return Path(name);
    }

    int Run(std::vector<std::string> arguments, const std::string& input = {})
    {
        arguments.insert(arguments.end(), {"--store", Path("loci.sqlite")});
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        const int status = RunProgram(arguments, in, out, err);
        m_out = out.str();
        m_err = err.str();
        return status;
    }

    nlohmann::json Json(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.end(), {"--format", "json"});
        EXPECT_EQ(Run(arguments), 0) << m_err;
        return nlohmann::json::parse(m_out);
    }

    Fakes::TemporaryDirectory m_directory;
    std::string m_out;
    std::string m_err;
};

TEST_F(Commands, ShowWhatWasImported)
{
    EXPECT_TRUE(Json({"list"}).empty());
    EXPECT_EQ(Run({"import", Write("panels.tsv", table)}), 0);
    EXPECT_THAT(m_out,
                AllOf(HasSubstr("2 loci are stored under tags with the name of their panel."),
                      HasSubstr("Imported 3 loci with 3 alleles.\n")));
    EXPECT_EQ(Run({"import", Path("panels.tsv")}), 0);
    EXPECT_THAT(m_out, StartsWith("Nothing to import: the store has 3 loci"));

    EXPECT_EQ(Json({"list"})[0]["LocusTag"], "D3S1358");
    EXPECT_EQ(Json({"show", "d3s1358"})["Alleles"][0]["Size"], 94.05);
    EXPECT_EQ(Run({"show", "TH01 (q)"}), 0);
    EXPECT_THAT(m_out, AllOf(HasSubstr("Fragment range        159 to 205 nt\n"),
                             HasSubstr("9.3         184.5            184          185      9.3")));
}

TEST_F(Commands, NameWhatIsWrongWithATableAndImportNothing)
{
    const std::string mixed = Write("mixed.tsv", table + purple);
    EXPECT_EQ(Run({"import", mixed}), 1);
    EXPECT_THAT(m_err, AllOf(HasSubstr("mixed.tsv, line 5: SE33 of Q: The colour purple"),
                             HasSubstr("Nothing was imported: 1 locus can't come in")));
    EXPECT_TRUE(Json({"list"}).empty());
    EXPECT_EQ(Run({"import", Write("bad.tsv", table + "P\tA\t8\tx\t\t\t\t\t\t\n")}), 1);
    EXPECT_THAT(m_err, AllOf(HasSubstr("bad.tsv, line 5: A of P: line 5, column Size: \"x\""),
                             HasSubstr("line 5, column Repeat: nothing")));
    EXPECT_EQ(Run({"import", Write("short.tsv", table + "P\tA\t8\tx\n")}), 1);
    EXPECT_THAT(m_err, HasSubstr("The line has 4 cells; expected 10; the file may have been cut"));
    EXPECT_EQ(Run({"import", mixed, "--panel", "R"}), 1);
    EXPECT_EQ(Run({"import", Path("none.tsv")}), 1);
    EXPECT_TRUE(Json({"list"}).empty());

    EXPECT_EQ(Run({"import", mixed, "--partial", "--panel", "q", "--panel", "P", "--project", "X"}),
              0);
    EXPECT_THAT(m_out, HasSubstr("Left out 1 locus.\n"));
    EXPECT_EQ(Json({"list"})[2]["ProjectName"], "X");
}

TEST_F(Commands, ExchangeLociWithOtherPrograms)
{
    const std::string file = Write("mixed.tsv", table + purple);
    EXPECT_EQ(Run({"import", file}), 1);
    EXPECT_THAT(m_err, HasSubstr("--add-dyes adds the dyes that 1 of them need"));
    EXPECT_EQ(Run({"import", "-", "--add-dyes", "--verbose"}, table + purple), 0);
    EXPECT_THAT(m_out,
                AllOf(HasSubstr("Added the dye purple."),
                      HasSubstr("  line 4: TH01 of Q is stored under the tag \"TH01 (Q)\".")));
    EXPECT_EQ(Run({"dyes", "--format", "tsv"}), 0);
    EXPECT_THAT(m_out, HasSubstr("D5\t\tpurple\t1\n"));
    EXPECT_EQ(Run({"dyes", "set", "blue", "green", "yellow", "red"}), 1);
    EXPECT_THAT(m_err, HasSubstr("SE33"));

    std::string other = table + purple;
    other.replace(other.find("94.05"), 5, "94.10");
    EXPECT_EQ(Run({"import", Write("other.tsv", other), "--dry-run", "--format", "tsv"}), 1);
    EXPECT_THAT(m_out, HasSubstr("D3S1358\trefused\tSize\t8\t94.05\t94.1\n"));
    EXPECT_EQ(Run({"import", Path("other.tsv"), "--update"}), 0);
    EXPECT_THAT(m_out, HasSubstr("Updated 1 locus.\nThe store had 3 loci already."));

    EXPECT_EQ(
        Run({"export", Path("p.txt"), Path("b.txt"), "--format", "panels-bins", "--panel", "q"}),
        0);
    EXPECT_EQ(Run({"import", Path("b.txt"), Path("p.txt"), "--dry-run"}), 0);
    EXPECT_THAT(m_out, HasSubstr("New: 0, same: 2, changed: 0, refused: 0."));
    EXPECT_EQ(Run({"export", "--format", "kit-table", "--tag", "SE33"}), 0);
    EXPECT_THAT(m_out, HasSubstr("\tQ\tQ\tFALSE\tFALSE\tFALSE\n"));
    EXPECT_EQ(Run({"export", "--format", "osiris-kit"}), 1);
    // A name that may come several times leaves the file alone.
    EXPECT_EQ(Run({"export", "--format", "kit-table", "--tag", "SE33", Path("kit.txt")}), 0);
    EXPECT_EQ(Run({"import", "--dry-run", "--panel", "Q", Path("kit.txt")}), 0);
    EXPECT_EQ(Run({"export", "--format", "panels-bins"}), 2);
}

TEST_F(Commands, SuggestTagsForOneThatIsNotThere)
{
    Run({"import", Write("panels.tsv", table)});
    for (const char* command : {"show", "delete"})
    {
        EXPECT_EQ(Run({command, "D3S135"}), 1);
        EXPECT_THAT(m_err, HasSubstr("\"D3S135\" in the store; did you mean D3S1358?"));
        EXPECT_EQ(Run({command, "x"}), 1);
        EXPECT_THAT(m_err, Not(HasSubstr("did you mean")));
    }
    EXPECT_EQ(Json({"list"}).size(), 3U);
}

TEST_F(Commands, ChangeAndFindLoci)
{
    Run({"import", Write("panels.tsv", table)});
    EXPECT_EQ(Run({"rename", "TH01 (q)", "TH01-green"}), 0);
    EXPECT_EQ(m_out, "Renamed TH01 (Q) to TH01-green.\n");
    EXPECT_EQ(Run({"rename", "D3S1358", "th01-green"}), 1);
    EXPECT_EQ(Run({"duplicate", "TH01-green", std::string(129, 'x')}), 1);
    EXPECT_THAT(m_err, HasSubstr("at most 128 characters, and this one has 129"));
    EXPECT_EQ(Run({"duplicate", "TH01-green", "Copy"}), 0);
    EXPECT_EQ(Run({"set", "copy", "D3S1358", "--dye", "Red", "--project", "New"}), 0);
    EXPECT_EQ(m_out, "Changed 2 loci.\n");
    EXPECT_EQ(Run({"set", "copy", "--dye", "pink"}), 1);
    EXPECT_THAT(m_err, HasSubstr("the store has no dye \"pink\". There are blue"));
    EXPECT_EQ(Run({"set", "copy"}), 2);
    EXPECT_EQ(Json({"list", "--where", "dye:red project:new allele:9.3"})[0]["LocusTag"], "Copy");
    EXPECT_EQ(Run({"list", "--where", "colour:red"}), 1);
    EXPECT_THAT(m_err, HasSubstr("--where \"colour:red\": There is no such term"));
    EXPECT_EQ(Run({"delete", "copy", "nothing"}), 1);
    EXPECT_EQ(Run({"delete", "copy", "d3s1358"}), 0);
    EXPECT_EQ(m_out, "Deleted Copy with 1 allele.\nDeleted D3S1358 with 1 allele.\n");
    EXPECT_EQ(Json({"list"}).size(), 2U);
}

TEST_F(Commands, BringADeletedLocusBack)
{
    Run({"import", Write("panels.tsv", table)});
    Run({"export"});
    const std::string before = m_out;
    Run({"show", "TH01 (P)", "--format", "tsv"});
    const std::string copy = Write("copy.tsv", m_out);
    EXPECT_EQ(Run({"delete", "th01 (P)"}), 0);
    EXPECT_EQ(m_out, "Deleted TH01 (P) with 1 allele.\n");
    EXPECT_EQ(Run({"import", copy}), 0);
    EXPECT_EQ(Run({"export", Path("after.tsv")}), 0);
    Run({"delete", "D3S1358"});
    EXPECT_EQ(Run({"import", Path("after.tsv")}), 0);
    EXPECT_THAT(m_out, HasSubstr("Imported 1 locus"));
    Run({"export"});
    EXPECT_EQ(m_out.size(), before.size());
}

TEST_F(Commands, ReportContextsAndTheLociOfAParameter)
{
    EXPECT_TRUE(Json({"report"})[0]["Contexts"].empty());
    Run({"import", Write("panels.tsv", table)});
    const auto report = Json({"report"});
    EXPECT_EQ(report[0]["Identifier"], 1010);
    EXPECT_EQ(report[0]["Contexts"].size(), 3U);
    EXPECT_EQ(report[0]["Contexts"][0]["Context"], "D3S1358");

    EXPECT_EQ(Run({"report", "--parameter", "Casework"}), 1);
    EXPECT_THAT(m_err, HasSubstr("Casework"));
    ASSERT_EQ(Run({"shell"}, "parameter Casework\ncell gridAvailable double 2\nsave\n"), 0);
    const auto selected = Json({"report", "--parameter", "casework"})[0];
    EXPECT_EQ(selected["Parameter"], "Casework");
    ASSERT_EQ(selected["Contexts"].size(), 1U);
    EXPECT_EQ(selected["Contexts"][0]["LocusTag"], "TH01 (P)");

    EXPECT_EQ(Run({"report", "--format", "html"}), 0);
    EXPECT_THAT(m_out, AllOf(StartsWith("<!DOCTYPE html>"), HasSubstr("<td>TH01 (Q)</td>")));
    EXPECT_EQ(Run({"report", "--format", "tsv"}), 0);
    EXPECT_THAT(m_out, StartsWith("Context\tLocusName\t"));

    EXPECT_EQ(Run({"delete", "TH01 (P)"}), 0);
    EXPECT_THAT(m_out, HasSubstr("The analysis parameter Casework still refers to it.\n"));
    EXPECT_TRUE(Json({"report", "--parameter", "Casework"})[0]["Contexts"].empty());
}

TEST(AlignedTable, CountsColumnsOfTheTerminal)
{
    EXPECT_EQ(TextWidth("\xE4\xBD\x8D e\xCC\x81"), 4U);
    std::ostringstream out;
    PrintAligned(out, {{{"Tag"}, {"Size", Table::Number}},
                       {{"\xE4\xBD\x8D\xE7\xBD\xAE", "9"}, {"a\x1B[1m", "100"}}});
    EXPECT_EQ(out.str(), "Tag    Size\n"
                         "-----  ----\n"
                         "\xE4\xBD\x8D\xE7\xBD\xAE      9\n"
                         "a\xEF\xBF\xBD[1m   100\n");
}

TEST_F(Commands, CheckFindsMistakesInStoreAndFile)
{
    std::string rows = table;
    for (int repeats = 5; repeats < 10; ++repeats)
    {
        const int size = 200 + 4 * repeats + (repeats == 7 ? 1 : 0);
        rows += "P\tFGA\t" + std::to_string(repeats) + '\t' + std::to_string(size) + '\t' +
                std::to_string(size) + '\t' + std::to_string(size + 1) + "\tblue\t4\t210\t240\n";
    }
    const std::string file = Write("wrong.tsv", rows);
    const std::string line = "error\tsize-name\tFGA\t7\t\tThe size of 229 nt doesn't fit the name "
                             "7; by its neighbours it would be 228 nt, 1 nt less\n";
    const std::string header = "Severity\tRule\tTag\tAllele\tField\tMessage\n";
    EXPECT_EQ(Run({"check", "--file", file, "--format", "tsv"}), 1) << m_err;
    EXPECT_EQ(m_out, header + line);
    EXPECT_FALSE(std::filesystem::exists(Path("loci.sqlite")));
    EXPECT_EQ(Run({"check", "--file", file, "--without", "size-name", "--format", "tsv"}), 0);
    EXPECT_EQ(m_out, header);

    EXPECT_EQ(Run({"import", file}), 0) << m_err;
    EXPECT_EQ(Run({"check", "--panel", "p", "--format", "tsv"}), 1);
    EXPECT_THAT(m_out, HasSubstr(line));
    EXPECT_EQ(Run({"check", "TH01 (P)", "--without", "convention"}), 0);
    EXPECT_EQ(m_out, "Checked 1 locus: no errors and no warnings.\n");
    EXPECT_EQ(Run({"check", "FGB"}), 1);
    EXPECT_EQ(m_out, "");
    EXPECT_THAT(m_err, HasSubstr("did you mean FGA?"));
    EXPECT_EQ(Run({"check", "--panel", "R"}), 1);
    EXPECT_EQ(m_out, "");
    EXPECT_EQ(Run({"check", "--without", "spelling"}), 2);
}

TEST_F(Commands, CheckLooksAtLociOfAPanelOrAParameterTogether)
{
    const std::string alike = "R\tD5S818\t9\t94.4\t93.9\t94.9\tblue\t4\t90\t130\n";
    const auto overlaps = [this](std::vector<std::string> scope) {
        scope.insert(scope.begin(), {"check", "--format", "tsv"});
        const bool isClean = Run(scope) == 0;
        EXPECT_EQ(isClean, m_out.find("error\t") == std::string::npos) << m_out;
        std::string tags;
        for (const char* tag : {"D3S1358", "D5S818"})
            tags += m_out.find(std::string("bin-overlap\t") + tag) == std::string::npos ? "-" : "+";
        return tags;
    };
    EXPECT_EQ(Run({"import", Write("panels.tsv", table + alike)}), 0);
    EXPECT_EQ(overlaps({}), "--");
    ASSERT_EQ(Run({"shell"}, "parameter Casework\ncell gridAvailable double 1\n"
                             "cell gridAvailable double 1\nsave\n"),
              0);
    EXPECT_EQ(overlaps({}), "++");
    EXPECT_EQ(overlaps({"--parameter", "casework"}), "++");
    EXPECT_EQ(overlaps({"--panel", "R"}), "--");
    EXPECT_EQ(overlaps({"d5s818"}), "-+");
    EXPECT_EQ(Run({"check", "--parameter", "Other"}), 1);
    EXPECT_EQ(m_out, "");
    EXPECT_EQ(Run({"delete", "D5S818"}), 0) << m_err;
    EXPECT_EQ(Run({"check", "--parameter", "Casework"}), 1);
    EXPECT_THAT(m_out, HasSubstr("missing-locus"));
}

TEST_F(Commands, FitProposesBinsAndCallsEachPeak)
{
    EXPECT_EQ(Run({"import", Write("panels.tsv", table)}), 0);
    std::string lines = "Sample,Marker,Size,Dye\nS,SE33,99,\"a,b\"\n";
    for (const char* sizes : {"\"94.1,98.1\"", "\"94.2,102.1\"", "98,", "\"102,106.1\"", "152"})
        lines += std::string("S,d3s1358,") + sizes + "\n";
    const std::string file = Write("sizes.csv", lines);
    const auto fit = Json({"fit", "D3S1358", "--observed", file, "--peaks", Path("peaks.tsv")})[0];
    EXPECT_EQ(m_err, "Ignored 1 line of markers that weren't asked for.\n");
    EXPECT_TRUE(fit["proposed"]) << fit;
    EXPECT_THAT(std::string(fit["reason"]), StartsWith("Outside the range of 92 to 149 nt"));
    EXPECT_EQ(fit["alleles"][3]["name"], "11");
    std::stringstream peaks;
    peaks << std::ifstream(Path("peaks.tsv")).rdbuf();
    EXPECT_THAT(peaks.str(), AllOf(StartsWith("Sample\tMarker\tSize\tDye\tTag\tCalled\tResidual\n"
                                              "S\tSE33\t99\ta,b\t\t\t\n"
                                              "S\td3s1358\t94.1\t\tD3S1358\t8\t"),
                                   HasSubstr("S\td3s1358\t106.1\t\tD3S1358\t11\t0\n")));

    EXPECT_EQ(Run({"fit", "D3S1358", "--observed", "-"}, lines), 0);
    EXPECT_THAT(m_out, HasSubstr("Caution: Outside the range of 92 to 149 nt"));
    EXPECT_EQ(Run({"fit", "D3S1358", "--observed", "-", "--peaks", Path("none")}, lines), 1);
    EXPECT_THAT(m_err, HasSubstr("store it in a file"));
    EXPECT_EQ(Run({"fit", "TH01 (P)", "--observed", file, "--apply"}), 1);
    EXPECT_EQ(Json({"show", "D3S1358"})["Alleles"].size(), 1U);
}

} // namespace

} // namespace Tamrivo
