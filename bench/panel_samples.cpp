#include "bench/panel_samples.h"

#include "bench/sample_store.h"

namespace Tamrivo::Bench
{

namespace
{

constexpr int firstAllele = 5;

std::string SizeOf(int allele)
{
    return std::to_string(80 + 4 * allele);
}

/// Calls `write(marker's name, allele)` for all alleles.
template <class Write>
void ForEachAllele(Write&& write)
{
    for (int marker = 0; marker < SampleMarkers; ++marker)
    {
        for (int allele = firstAllele; allele < firstAllele + SampleAlleles; ++allele)
            write(SampleTag(marker), allele);
    }
}

const std::string columns = "Panel\tMarker\tAllele\tSize\tSize.Min\tSize.Max\tVirtual\tColor"
                            "\tRepeat\tMarker.Min\tMarker.Max\tOffset";

std::string TableLine(const std::string& marker, int allele)
{
    const std::string size = SizeOf(allele);
    return "Panel\t" + marker + '\t' + std::to_string(allele) + '\t' + size + ".25\t" + size +
           '\t' + size + ".5\t0\tblue\t4\t90.5\t240.5\t80";
}

} // namespace

std::string SamplePanelTable()
{
    std::string text = columns + '\n';
    ForEachAllele([&text](const std::string& marker, int allele) {
        text += TableLine(marker, allele) + '\n';
    });
    return text;
}

std::string SampleKitTable()
{
    std::string text =
        columns + "\tShort.Name\tFull.Name\tSex.Marker\tGender.Marker\tQuality.Sensor\n";
    ForEachAllele([&text](const std::string& marker, int allele) {
        text += TableLine(marker, allele) + "\tP\tPanel\tFALSE\tFALSE\tFALSE\n";
    });
    return text;
}

std::string SamplePanelsFile()
{
    std::string text = "Version\tGMID-X v 1.0\nKit type:\tMICROSATELLITE\nChemistry Kit\tK\tnull\n"
                       "Panel\tPanel\tnull\n";
    for (int marker = 0; marker < SampleMarkers; ++marker)
    {
        text += SampleTag(marker) + "\tblue\t90.5\t240.5\t-\t4\tnone\t";
        for (int allele = firstAllele; allele < firstAllele + SampleAlleles; ++allele)
            text += std::to_string(allele) + ", ";
        text += '\n';
    }
    return text;
}

std::string SampleBinsFile()
{
    std::string text =
        "Version\tGMID-X v 1.0\nChemistry Kit\tK\nBinSet Name\tB\nPanel Name\tPanel\n";
    ForEachAllele([&text](const std::string& marker, int allele) {
        if (allele == firstAllele)
            text += "Marker Name\t" + marker + '\n';
        text += std::to_string(allele) + '\t' + SizeOf(allele) + ".25\t0.25\t0.25\n";
    });
    return text;
}

std::string SampleKitFile()
{
    std::string text = "<KitData><Version>2.7</Version><Kits><Set><Name>Panel</Name>\n";
    ForEachAllele([&text](const std::string& marker, int allele) {
        if (allele == firstAllele)
            text += "<Locus><Name>" + marker +
                    "</Name><Channel>1</Channel>\n<MinBP>90</MinBP><MaxBP>240</MaxBP>\n"
                    "<LadderAlleles>\n";
        text += "  <Allele>\n    <Name>" + std::to_string(allele) +
                "</Name>\n    <CurveNo>1"
                "</CurveNo>\n    <BP>" +
                SizeOf(allele) + "</BP>\n  </Allele>\n";
        if (allele == firstAllele + SampleAlleles - 1)
            text += "</LadderAlleles></Locus>\n";
    });
    return text + "</Set></Kits></KitData>\n";
}

} // namespace Tamrivo::Bench
