#include "tests/panels/format_samples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace Tamrivo
{

namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using namespace Samples;

TEST(PanelsAndBins, ArePutTogether)
{
    for (const auto& files : {std::vector{panels, Bins("S", "P1")}, {Bins("S", "p1"), panels}})
    {
        const PanelReading reading = Read(files);
        ASSERT_THAT(reading.Complaints, IsEmpty());
        ASSERT_THAT(reading.Markers, SizeIs(2));
        const PanelMarker& d3 = reading.Markers[0];
        EXPECT_EQ(d3.Panel, "P1");
        EXPECT_EQ(d3.RangeEnd, 150.5);
        ASSERT_THAT(d3.Alleles, SizeIs(2));
        EXPECT_EQ(d3.Alleles[0].BinStart, 92.97);
        EXPECT_EQ(d3.Alleles[0].BinEnd, 94.07);
        EXPECT_TRUE(d3.Alleles[0].IsVirtual);
        EXPECT_FALSE(d3.Alleles[1].IsVirtual);
        ASSERT_THAT(reading.Remarks, SizeIs(1));
        EXPECT_THAT(reading.Remarks[0].Text, HasSubstr("D3S1358, allele 10"));
    }
    const std::vector<std::string> two = {panels, Bins("One", "P1"), Bins("Two", "P1")};
    EXPECT_THAT(Read(two, {.BinSet = "two"}).Complaints, IsEmpty());
    EXPECT_THAT(Read(two, {.BinSet = "two"}).BinSets, ElementsAre("One", "Two"));
    // A panel with a single set of bins needs no choice.
    std::string panelsP2 = panels;
    panelsP2.replace(panelsP2.find("P1"), 2, "P2");
    const PanelReading both =
        Read({two[0], two[1], two[2], panelsP2, Bins("Three", "P2")}, {.BinSet = "Two"});
    EXPECT_THAT(both.Complaints, IsEmpty());
    EXPECT_TRUE(std::ranges::all_of(both.Markers, [](const auto& marker) {
        return marker.Flaws.empty() && marker.Alleles.size() == 2;
    }));

    struct Case
    {
        std::vector<std::string> Files;
        ReadChoice Choice;
        const char* Problem;
    };
    for (const auto& [files, choice, problem] : {
             Case{two, {}, "several sets of bins: One, Two"},
             {two, {.BinSet = "Three"}, "but these: One, Two"},
             {{panels, Bins("S", "P2")}, {}, "panels are P1, and the bins are of P2"},
             {{panels}, {}, "give the bins file"},
             {{Bins("S", "P1")}, {}, "give the panels file"},
             {{panels.substr(0, 60), Bins("S", "P1")}, {}, "cut off"},
         })
    {
        const PanelReading reading = Read(files, choice);
        ASSERT_THAT(reading.Complaints, testing::Not(IsEmpty())) << problem;
        EXPECT_THAT(reading.Complaints[0].Text(), HasSubstr(problem));
    }
}

TEST(PanelsAndBins, ThatAreCutOffAreToldOfInOneSentence)
{
    const std::string bins = Bins("S", "P1");
    const std::string whole = panels + "TH01\tred\t90\t150\t-\t4\tnone\t8\n";
    struct Case
    {
        std::string Panels;
        std::string Bins;
        const char* Text;
    };
    for (const auto& [first, second, text] : {
             Case{panels, bins.substr(0, bins.find("9\t97") + 4),
                  "file2, line 6: The file ends in"},
             {panels.substr(0, panels.find("70")), bins, "file1, line 6: The file ends in"},
             {whole, bins.substr(0, bins.find("Marker Name\tAMEL")),
              "file2, line 6: The file ends here without bins of \"AMEL\", \"TH01\";"},
             {whole, bins.substr(0, bins.find("\nX")),
              "file2, line 7: The file ends here without bins of \"AMEL\", \"TH01\";"},
             {panels.substr(0, panels.find("AMEL")), bins,
              "file1, line 5: The file ends here without the markers \"AMEL\" of the bins;"},
             {panels + panels.substr(panels.find("D3S1358")), bins,
              "file1, line 9: The panel has a marker of this name further up"},
             {panels, bins + "\nMarker Name\tD3S1358\n8\t93\t1\t1\n",
              "file2, line 10: The marker \"D3S1358\" has other bins here"},
         })
    {
        const PanelReading reading = Read({first, second});
        std::set<std::string> texts;
        for (const PanelComplaint& complaint : reading.Complaints)
            texts.insert(complaint.Text());
        for (const PanelMarker& marker : reading.Markers)
        {
            for (const PanelComplaint& flaw : marker.Flaws)
                texts.insert(flaw.Text());
        }
        EXPECT_THAT(texts, Contains(StartsWith(text)));
        EXPECT_THAT(texts, SizeIs(testing::Le(2)));
    }
}

} // namespace

} // namespace Tamrivo
