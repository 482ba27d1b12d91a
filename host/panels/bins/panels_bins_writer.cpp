#include "host/panels/bins/panels_bins_writer.h"

#include "core/text.h"
#include "host/loci/keys.h"
#include "host/panels/cells.h"

#include <cmath>

namespace Tamrivo
{

namespace
{

constexpr const char* version = "Version\tGMID-X v 1.0\n";

std::string KitOf(const ExportPlan& plan)
{
    if (!plan.Choice.Kit.empty())
        return plan.Choice.Kit;
    return plan.Markers.empty() ? "Loci" : plan.Markers.front().Panel;
}

std::string Distance(double from, double to)
{
    constexpr double steps = 10'000;
    return NumberCell(std::round((to - from) * steps) / steps);
}

std::string PanelsLine(const ExportedMarker& marker)
{
    const Locus& locus = *marker.Source;
    std::string ladder;
    for (const AlleleFields* allele : marker.Ladder())
        ladder += (ladder.empty() ? "" : ", ") + Trim(allele->AlleleText1);
    return marker.Marker + '\t' + marker.Color + '\t' + NumberCell(locus.FragStart) + '\t' +
           NumberCell(locus.FragEnd) + "\t-\t" + NumberCell(locus.RepeatLength) + "\tnone\t" +
           ladder;
}

} // namespace

bool IsLongPanelsLine(const ExportedMarker& marker)
{
    return PanelsLine(marker).size() >= 500;
}

void WritePanelsFile(std::ostream& out, const ExportPlan& plan)
{
    out << version << "Kit type:\tMICROSATELLITE\nChemistry Kit\t" << KitOf(plan) << "\tnull\n";
    std::string panel;
    for (const ExportedMarker& marker : plan.Markers)
    {
        if (LookupKey(marker.Panel) != LookupKey(panel))
            out << "Panel\t" << marker.Panel << "\tnull\n";
        panel = marker.Panel;
        out << PanelsLine(marker) << '\n';
    }
}

void WriteBinsFile(std::ostream& out, const ExportPlan& plan)
{
    out << version << "Chemistry Kit\t" << KitOf(plan) << "\nBinSet Name\t" << KitOf(plan)
        << "_Bins\n";
    std::string panel;
    for (const ExportedMarker& marker : plan.Markers)
    {
        if (LookupKey(marker.Panel) != LookupKey(panel))
            out << "Panel Name\t" << marker.Panel << '\n';
        panel = marker.Panel;
        out << "Marker Name\t" << marker.Marker << '\n';
        for (const AlleleFields* allele : marker.Alleles)
            out << Trim(allele->AlleleText1) << '\t' << NumberCell(allele->AlleleReal1) << '\t'
                << Distance(allele->AlleleReal2, allele->AlleleReal1) << '\t'
                << Distance(allele->AlleleReal1, allele->AlleleReal3)
                << (allele->AlleleInt2 == 1 ? "\tvirtual\n" : "\n");
    }
}

} // namespace Tamrivo
