#include "host/library/library.h"

#include "host/database/columns.h"
#include "host/store/parameter_store.h"
#include "host/store/store.h"

#include <algorithm>

namespace Tamrivo
{

namespace
{

/// What is read of the table Locus.
struct LocusRow
{
    LibraryLocus Locus;
    std::string Panel;
    std::string Project;
    long long Changed = 0; ///< Seconds since 1970, UTC.

    template <class Visit>
    void VisitColumns(Visit&& visit)
    {
        visit("LocusID", Locus.LocusID);
        visit("LocusTag", Locus.Tag);
        visit("LocusName", Locus.Name);
        visit("GenBank", Locus.Accession);
        visit("PrimerSet", Panel);
        visit("ProjectName", Project);
        visit("DyeIndex", Locus.DyeIndex);
        visit("FragStart", Locus.FragStart);
        visit("FragEnd", Locus.FragEnd);
        visit("RepeatLength", Locus.RepeatLength);
        visit("DateLastModified", Changed);
    }
};

struct AlleleCountRow
{
    std::int32_t LocusID = 0;
    long long Alleles = 0;
    long long Virtual = 0;

    template <class Visit>
    void VisitColumns(Visit&& visit)
    {
        visit("LocusID", LocusID);
        visit("COUNT(*)", Alleles);
        visit("SUM(CASE WHEN AlleleInt2 = 1 THEN 1 ELSE 0 END)", Virtual);
    }
};

struct AlleleNameRow
{
    std::int32_t LocusID = 0;
    std::string Name;

    template <class Visit>
    void VisitColumns(Visit&& visit)
    {
        visit("LocusID", LocusID);
        visit("AlleleText1", Name);
    }
};

/// A tag in the list of a parameter.
struct UseRow
{
    std::string Name;
    std::int32_t LocusID = 0;

    template <class Visit>
    void VisitColumns(Visit&& visit)
    {
        visit("Name", Name);
        visit("LocusTagID", LocusID);
    }
};

/// Calls `use` after each row of "SELECT COLUMNS REST".
template <class Row, class Use>
void ReadRows(Store& store, Row& row, const std::string& rest, Use&& use)
{
    Database& database = store.SharedDatabase();
    database.Run("The library is not read", [&](soci::session& session) {
        soci::statement statement(session);
        BindInto(database, statement, row);
        Prepare(statement, "SELECT " + ColumnNames(row) + " " + rest);
        // A row takes less time than telling that the work goes on.
        constexpr std::size_t rowsPerReport = 256;
        std::size_t rows = 0;
        for (statement.execute(); statement.fetch(); ++rows)
        {
            if (rows % rowsPerReport == 0)
                database.Progress();
            use();
        }
    });
}

} // namespace

Library::Library(Store& store) : m_store(store), m_dyes(store.Dyes())
{
    ReadLoci();
    CountAlleles();
    ReadParameters();
}

void Library::ReadLoci()
{
    LocusRow row;
    ReadRows(m_store, row, "FROM Locus WHERE IsCurrent = 1 ORDER BY LocusID", [&] {
        row.Locus.Panel = m_panels.Count(row.Panel);
        row.Locus.Project = m_projects.Count(row.Project);
        row.Locus.Changed = std::chrono::sys_seconds(std::chrono::seconds(row.Changed));
        m_loci.push_back(row.Locus);
    });
}

void Library::CountAlleles()
{
    AlleleCountRow row;
    ReadRows(m_store, row, "FROM Allele GROUP BY LocusID", [&] {
        if (const auto position = Find(row.LocusID))
        {
            m_loci[*position].Alleles = static_cast<std::int32_t>(row.Alleles);
            m_loci[*position].VirtualAlleles = static_cast<std::int32_t>(row.Virtual);
        }
    });
}

void Library::ReadParameters()
{
    for (std::string& name : ParameterStore(m_store).Names())
        m_parameters.push_back({std::move(name), {}});
    UseRow row;
    const auto isOfRow = [&row](const LibraryParameter& one) { return one.Name == row.Name; };
    auto parameter = m_parameters.begin();
    ReadRows(m_store, row,
             "FROM AnalysisParameterTag JOIN AnalysisParameter "
             "ON AnalysisParameter.ParameterID = AnalysisParameterTag.ParameterID "
             "ORDER BY NameKey, LocusTagID",
             [&] {
                 const auto position = Find(row.LocusID);
                 if (!position)
                     return;
                 if (parameter == m_parameters.end() || !isOfRow(*parameter))
                     parameter = std::ranges::find_if(m_parameters, isOfRow);
                 if (parameter == m_parameters.end())
                     return;
                 parameter->Loci.push_back(*position);
                 ++m_loci[*position].UsedBy;
             });
}

std::optional<std::size_t> Library::Find(std::int32_t locusID) const
{
    const auto found = std::ranges::lower_bound(m_loci, locusID, {}, &LibraryLocus::LocusID);
    if (found == m_loci.end() || found->LocusID != locusID)
        return std::nullopt;
    return static_cast<std::size_t>(found - m_loci.begin());
}

const FoldedTexts& Library::Words()
{
    if (m_words)
        return *m_words;
    m_words.emplace();
    for (const LibraryLocus& locus : m_loci)
    {
        m_words->AddLocus();
        for (const std::string_view part :
             {std::string_view(locus.Tag), std::string_view(locus.Name),
              std::string_view(m_panels[locus.Panel].Name),
              std::string_view(m_projects[locus.Project].Name), std::string_view(locus.Accession)})
            m_words->AddPart(part);
    }
    return *m_words;
}

const FoldedTexts& Library::AlleleNames()
{
    if (m_alleleNames)
        return *m_alleleNames;
    FoldedTexts names;
    AlleleNameRow row;
    const auto skipTo = [&](std::size_t count) {
        while (names.Count() < count)
            names.AddLocus();
    };
    ReadRows(m_store, row, "FROM Allele ORDER BY LocusID, Position", [&] {
        const auto position = Find(row.LocusID);
        if (!position)
            return;
        skipTo(*position + 1);
        names.AddPart(row.Name);
    });
    skipTo(m_loci.size());
    return m_alleleNames.emplace(std::move(names));
}

} // namespace Tamrivo
