#include "host/panels/table/panel_writer.h"

#include "host/loci/repeats.h"
#include "host/panels/cells.h"
#include "host/panels/locus_columns.h"
#include "host/panels/marker_name.h"
#include "host/panels/panel_marker.h"
#include "host/panels/table/panel_table.h"
#include "host/store/bulk_alleles.h"
#include "host/store/store.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Tamrivo
{

namespace
{

std::string OffsetOf(const Locus& locus, const AlleleFields* shortest)
{
    double repeats = shortest != nullptr ? shortest->AlleleReal4 : 0;
    if (repeats == 0)
        repeats = CellNumber(locus.RepeatsInShortestAllele).value_or(1);
    const double size = shortest != nullptr ? shortest->AlleleReal1 : locus.ShortestAlleleSize;
    // To the nearest whole number, a half down.
    return NumberCell(std::ceil(size - RepeatsLength(repeats, locus.RepeatLength) - 0.5));
}

class PanelTableWriter
{
public:
    PanelTableWriter(std::ostream& out, const Dyes& dyes) : m_out(out), m_dyes(dyes)
    {
        for (std::size_t column = 0; column < WrittenColumnCount; ++column)
            m_row.emplace_back(PanelColumnRules[column].Name);
        for (const LocusField* field : LocusFieldColumns())
            m_row.emplace_back(field->Name);
        WriteRow();
    }

    void Write(Locus& locus)
    {
        std::vector<const AlleleFields*> alleles;
        for (const auto& member : locus.Alleles().Members())
            alleles.push_back(As<Allele>(member).get());
        const auto shortest = std::ranges::min_element(
            alleles, {}, [](const AlleleFields* allele) { return allele->AlleleReal1; });

        SetLocus(locus, shortest == alleles.end() ? nullptr : *shortest);
        for (const AlleleFields* allele : alleles)
        {
            SetAllele(*allele);
            WriteRow();
        }
        if (alleles.empty())
            WriteRow();
    }

private:
    std::string& Cell(PanelColumn column) { return m_row[static_cast<std::size_t>(column)]; }

    /// Fills the cells of the locus and empties those of the allele.
    void SetLocus(const Locus& locus, const AlleleFields* shortest)
    {
        std::ranges::fill(m_row, std::string());
        const std::string marker = MarkerOf(locus);
        Cell(PanelColumn::Panel) = EscapeCell(locus.PrimerSet);
        Cell(PanelColumn::Marker) = EscapeCell(marker);
        Cell(PanelColumn::LocusTag) =
            locus.LocusTag() == marker ? "" : EscapeCell(locus.LocusTag());
        Cell(PanelColumn::Color) = m_dyes.ColorOf(locus.DyeIndex);
        Cell(PanelColumn::Repeat) = NumberCell(locus.RepeatLength);
        Cell(PanelColumn::MarkerMin) = NumberCell(locus.FragStart);
        Cell(PanelColumn::MarkerMax) = NumberCell(locus.FragEnd);
        Cell(PanelColumn::Offset) = OffsetOf(locus, shortest);
        std::size_t position = WrittenColumnCount;
        for (const LocusField* field : LocusFieldColumns())
            m_row[position++] = EscapeCell(FieldCell(locus, *field));
    }

    void SetAllele(const AlleleFields& allele)
    {
        Cell(PanelColumn::Allele) = EscapeCell(allele.AlleleText1);
        Cell(PanelColumn::Size) = NumberCell(allele.AlleleReal1);
        Cell(PanelColumn::SizeMin) = NumberCell(allele.AlleleReal2);
        Cell(PanelColumn::SizeMax) = NumberCell(allele.AlleleReal3);
        Cell(PanelColumn::Virtual) = NumberCell(allele.AlleleInt2);
        Cell(PanelColumn::AlleleReal4) = NumberCell(allele.AlleleReal4);
        Cell(PanelColumn::AlleleInt1) = NumberCell(allele.AlleleInt1);
    }

    void WriteRow()
    {
        for (std::size_t position = 0; position < m_row.size(); ++position)
            m_out << (position > 0 ? "\t" : "") << m_row[position];
        m_out << '\n';
    }

    std::ostream& m_out;
    const Dyes& m_dyes;
    std::vector<std::string> m_row;
};

} // namespace

std::size_t WritePanelTable(std::ostream& out, Store& store, const LociProgress& progress)
{
    const Dyes dyes = store.Dyes();
    const std::size_t total = CountCurrentLoci(store);
    PanelTableWriter writer(out, dyes);
    std::size_t count = 0;
    ForEachCurrentLocus(store, [&](Locus& locus, std::size_t done) {
        if (progress)
            progress(done, std::max(total, done));
        writer.Write(locus);
        count = done + 1;
    });
    return count;
}

void WritePanelTable(std::ostream& out, std::span<const std::shared_ptr<BusinessObject>> loci,
                     const Dyes& dyes, const LociProgress& progress)
{
    PanelTableWriter writer(out, dyes);
    ForEachWithAlleles(loci, [&](Locus& locus, std::size_t done) {
        if (progress)
            progress(done, loci.size());
        writer.Write(locus);
    });
}

} // namespace Tamrivo
