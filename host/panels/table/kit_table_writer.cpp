#include "host/panels/table/kit_table_writer.h"

#include "core/error.h"
#include "core/text.h"
#include "host/panels/cells.h"
#include "host/panels/table/table_lines.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <sstream>

namespace Tamrivo
{

namespace
{

constexpr const char* missing = "NA";

/// A line of the table on its way out.
struct KitRow
{
    const ExportedMarker& Marker;
    const AlleleFields& Allele;
    const std::string& ShortName;
    const std::string& Offset;
};

bool IsQualitySensor(const ExportedMarker& marker)
{
    return FoldCase(marker.Marker).starts_with("qs");
}

bool IsOfSex(const ExportedMarker& marker)
{
    const std::string name = FoldCase(marker.Marker);
    constexpr std::string_view starts[] = {"amel", "dy", "y-", "y indel", "yindel"};
    return std::ranges::any_of(starts,
                               [&](std::string_view start) { return name.starts_with(start); });
}

std::string Truth(bool value)
{
    return value ? "TRUE" : "FALSE";
}

struct KitColumn
{
    std::string_view Name;
    bool IsText;
    std::string (*Cell)(const KitRow&);
};

constexpr KitColumn columns[] = {
    {"Panel", true, [](const KitRow& row) { return row.Marker.Panel; }},
    {"Marker", true, [](const KitRow& row) { return row.Marker.Marker; }},
    {"Allele", true, [](const KitRow& row) { return Trim(row.Allele.AlleleText1); }},
    {"Size", false, [](const KitRow& row) { return NumberCell(row.Allele.AlleleReal1); }},
    {"Size.Min", false, [](const KitRow& row) { return NumberCell(row.Allele.AlleleReal2); }},
    {"Size.Max", false, [](const KitRow& row) { return NumberCell(row.Allele.AlleleReal3); }},
    {"Virtual", false, [](const KitRow& row) { return NumberCell(row.Allele.AlleleInt2); }},
    {"Color", true, [](const KitRow& row) { return row.Marker.Color; }},
    {"Repeat", false,
     [](const KitRow& row) { return NumberCell(row.Marker.Source->RepeatLength); }},
    {"Marker.Min", false,
     [](const KitRow& row) { return NumberCell(row.Marker.Source->FragStart); }},
    {"Marker.Max", false, [](const KitRow& row) { return NumberCell(row.Marker.Source->FragEnd); }},
    {"Offset", false, [](const KitRow& row) { return row.Offset; }},
    {"Short.Name", true, [](const KitRow& row) { return row.ShortName; }},
    {"Full.Name", true, [](const KitRow& row) { return row.Marker.Panel; }},
    {"Sex.Marker", false, [](const KitRow& row) { return Truth(IsOfSex(row.Marker)); }},
    {"Gender.Marker", false, [](const KitRow& row) { return Truth(IsOfSex(row.Marker)); }},
    {"Quality.Sensor", false, [](const KitRow& row) { return Truth(IsQualitySensor(row.Marker)); }},
};

const KitColumn* FindColumn(std::string_view name)
{
    const auto* found = std::ranges::find_if(
        columns, [name](const KitColumn& column) { return EqualNoCase(column.Name, name); });
    return found == std::end(columns) ? nullptr : found;
}

/// Size less repeats of the smallest allele in the ladder whose name is a number. A half is rounded
/// to the even neighbour, as R does.
std::string OffsetOf(const ExportedMarker& marker)
{
    const AlleleFields* smallest = nullptr;
    for (const AlleleFields* allele : marker.Ladder())
    {
        if (CellNumber(allele->AlleleText1) &&
            (smallest == nullptr || allele->AlleleReal1 < smallest->AlleleReal1))
            smallest = allele;
    }
    if (smallest == nullptr || IsQualitySensor(marker))
        return missing;
    const double repeats = *CellNumber(smallest->AlleleText1);
    const double whole = std::floor(repeats);
    // The rounding mode is never changed from "to the nearest, halves to even".
    return NumberCell(std::nearbyint(smallest->AlleleReal1) -
                      (whole * marker.Source->RepeatLength + std::round(10 * (repeats - whole))));
}

class KitTableWriter
{
public:
    KitTableWriter(std::ostream& out, const ExportPlan& plan) : m_out(out), m_plan(plan) {}

    /// How the lines are to look.
    std::vector<const KitColumn*> Columns; ///< Null: one that the program doesn't know.
    bool IsQuoted = false;
    std::string LineEnd = "\n";

    void WriteHeader()
    {
        for (const KitColumn& column : columns)
        {
            m_out << (Columns.empty() ? "" : "\t") << column.Name;
            Columns.push_back(&column);
        }
        m_out << LineEnd;
    }

    void WriteRows(const LociProgress& progress)
    {
        for (std::size_t done = 0; done < m_plan.Markers.size(); ++done)
        {
            if (progress)
                progress(done, m_plan.Markers.size());
            const ExportedMarker& marker = m_plan.Markers[done];
            const std::string offset = OffsetOf(marker);
            const std::string shortName =
                m_plan.Choice.ShortName.empty() ? marker.Panel : m_plan.Choice.ShortName;
            for (const AlleleFields* allele : marker.Alleles)
                WriteRow({marker, *allele, shortName, offset});
        }
    }

private:
    void WriteRow(const KitRow& row)
    {
        const char* gap = "";
        for (const KitColumn* column : Columns)
        {
            m_out << gap;
            gap = "\t";
            if (column == nullptr)
                m_out << missing;
            else if (column->IsText)
                m_out << TextCell(column->Cell(row));
            else
                m_out << column->Cell(row);
        }
        m_out << LineEnd;
    }

    /// A double quote at the start of a cell would begin a quoted one.
    std::string TextCell(std::string text) const
    {
        if (!IsQuoted)
        {
            std::ranges::replace(text, '"', '\'');
            return text;
        }
        std::string cell = "\"";
        for (const char character : text)
            cell += character == '"' ? std::string("\\\"") : std::string(1, character);
        return cell + "\"";
    }

    std::ostream& m_out;
    const ExportPlan& m_plan;
};

[[noreturn]] void RefuseTable(const std::string& why)
{
    throw Failure(ErrorNumber::InvalidArgument, "KitTable", "Nothing was added: " + why);
}

void RequireNewPanels(TableLines& lines, std::size_t shortName, const ExportPlan& plan)
{
    std::set<std::string, LessNoCase> present;
    while (lines.Next())
        present.insert(Trim(UnquotedCell(lines.Cell(shortName))));
    for (const ExportedMarker& marker : plan.Markers)
    {
        const std::string name =
            plan.Choice.ShortName.empty() ? marker.Panel : Trim(plan.Choice.ShortName);
        if (present.contains(name))
            RefuseTable("the table has a panel with the short name \"" + name +
                        "\" already. Choose another short name (--short-name)");
    }
}

} // namespace

void WriteKitTable(std::ostream& out, const ExportPlan& plan, const LociProgress& progress)
{
    KitTableWriter writer(out, plan);
    writer.WriteHeader();
    writer.WriteRows(progress);
}

void AppendToKitTable(std::ostream& out, const std::string& table, const ExportPlan& plan,
                      const LociProgress& progress)
{
    KitTableWriter writer(out, plan);
    std::istringstream bytes(table);
    LineReader source(bytes);
    TableLines lines(source);
    if (!lines.Next())
        RefuseTable("the table that should be added to is empty");
    std::size_t shortName = lines.Cells().size();
    std::set<const KitColumn*> found;
    for (std::size_t at = 0; at < lines.Cells().size(); ++at)
    {
        const KitColumn* column = FindColumn(Trim(UnquotedCell(lines.Cell(at))));
        writer.Columns.push_back(column);
        found.insert(column);
        if (column != nullptr && column->Name == "Short.Name")
            shortName = at;
    }
    for (const KitColumn& column : columns)
    {
        // Each of the two programs lacks columns of the other.
        const bool isOfOne = column.Name.ends_with(".Marker") || column.Name == "Quality.Sensor";
        if (!isOfOne && !found.contains(&column))
            RefuseTable("the table that should be added to is no kit table; it lacks the column " +
                        std::string(column.Name));
    }
    writer.IsQuoted = lines.Cell(0).starts_with('"');
    RequireNewPanels(lines, shortName, plan);

    const std::size_t lineEnd = table.find('\n');
    if (lineEnd != std::string::npos && lineEnd > 0 && table[lineEnd - 1] == '\r')
        writer.LineEnd = "\r\n";
    out << table;
    if (!table.ends_with('\n'))
        out << writer.LineEnd;
    writer.WriteRows(progress);
}

} // namespace Tamrivo
