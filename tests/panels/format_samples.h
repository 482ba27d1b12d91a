#pragma once

#include "host/panels/panel_files.h"

#include <string>
#include <vector>

namespace Tamrivo::Samples
{

inline const std::string kitTable =
    "\"Panel\"\t\"Marker\"\t\"Allele\"\t\"Size\"\t\"Size.Min\"\t\"Size."
    "Max\"\t\"Virtual\"\t\"Color\""
    "\t\"Repeat\"\t\"Marker.Min\"\t\"Marker.Max\"\t\"Offset\"\t\"Short.Name\"\t\"Full.Name\"\r\n"
    "\"Kit "
    "\\\"A\\\"\"\t\"AMEL\"\t\"X\"\t81.79\t81.29\t82.29\t0\t\"Blue\"\t9\t78\t92\tNA\t\"KA\"\t\"Kit "
    "A \"\r\n"
    "\"Kit "
    "\\\"A\\\"\"\t\"TH01\"\t\"9.30\"\t175.5\t175\t176\t1\t\"green\"\t4\t148.2\t194."
    "4\t138\t\"KA\"\t\"Kit A \"\r\n"
    "\"Kit B\"\t\"TH01\"\t\"9.3\"\tNA\tNA\tNA\tNA\t\"black\"\tNA\tNA\tNA\tNA\t\"KB\"\tNA\r\n"
    "\"Kit C\"\t\"FGA\"\t\"20\"\tsmall\t1\t2\t0\t\"red\"\t4\t90\t150\t10\t\"KC\"\tNA\r\n";

inline const std::string panels =
    "Version\tGM v 4.1\t\t\nKit type:\tMICROSATELLITE\nChemistry Kit\tK\tnone\n"
    "Panel\tP1\tnone\t\t\t\n"
    "D3S1358\tBlue\t90.0\t150.5\t17,18\t4\t0.0\tnone\tnone\tfalse\t\"8, 9, 10,\"\t\t\n"
    "AMEL\tpurple\t70\t90\t-\t9\tnone\tX, Y\n\n\n";

/// A bins file of the panel.
inline std::string Bins(const std::string& set, const std::string& panel)
{
    return "Version\tGM v 4.1\nChemistry Kit\tKBinSet Name\t" + set + "\nPanel Name\t" + panel +
           "\t\t\nMarker Name\tD3S1358\n8\t93.47\t0.5\t0.5999999999999943\tvirtual\n"
           "9\t97.82\t0.5\t0.5\tdark gray\nMarker Name\tAMEL\nX\t80\t0.4\t0.4\nY\t86\t0.4\t0.4";
}

inline const std::string kit =
    "<?xml version=\"1.0\"?>\n<KitData><Version>2.7</Version><Kits><Set><Name> K7 </Name>\n"
    "<FsaChannelMap><Channel><KitChannelNumber>2</KitChannelNumber><Color>RED</Color></Channel>"
    "</FsaChannelMap>\n"
    "<!-- <Locus><Name>No</Name></Locus> -->\n"
    "<Locus><Name>D3S1358</Name><Channel>1</Channel><MinBP>94</MinBP><MaxBP>102</MaxBP>\n"
    "<SearchRegions><Region><MinGrid>89.5</MinGrid><MaxGrid>106</MaxGrid></Region>"
    "<Region><MinGrid>92</MinGrid><MaxGrid>107.5</MaxGrid></Region></SearchRegions>\n"
    "<Other x=\"1\"/><LadderAlleles><Allele><Name>8</Name><BP>94</BP></Allele>"
    "<Allele><Name>9.3</Name><BP>101</BP></Allele></LadderAlleles></Locus>\n"
    "<Locus><Name>AMEL</Name><Channel>2</Channel><MinBP>80</MinBP><MaxBP>86</MaxBP>"
    "<CoreRepeatNumber>6</CoreRepeatNumber><LadderAlleles><Allele><Name>1</Name><BP>80</BP></"
    "Allele>"
    "<Allele><Name>2</Name><BP>86</BP></Allele></LadderAlleles></Locus></Set></Kits></KitData>";

/// Reads the texts as the files file1, file2 and so on.
inline PanelReading Read(const std::vector<std::string>& texts, const ReadChoice& choice = {})
{
    std::vector<PanelFile> files;
    for (const std::string& text : texts)
        files.push_back(PanelFileOf("file" + std::to_string(files.size() + 1), text));
    return ReadPanels(files, choice);
}

} // namespace Tamrivo::Samples
