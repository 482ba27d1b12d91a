#include "host/panels/import_plan.h"

#include "core/text.h"
#include "host/panels/import_choice.h"
#include "host/panels/import_tags.h"
#include "host/panels/locus_columns.h"
#include "host/panels/marker_fields.h"
#include "host/store/store.h"

#include <algorithm>
#include <map>

namespace Tamrivo
{

namespace
{

constexpr std::string_view defaultProject = "Default";

std::vector<AlleleFields> AllelesOf(Locus& locus)
{
    std::vector<AlleleFields> alleles;
    for (const auto& member : locus.Alleles().Members())
        alleles.push_back(*As<Allele>(member));
    return alleles;
}

/// "FragEnd, alleles"
std::string NamesOf(const std::vector<Difference>& differences)
{
    std::string names;
    for (const Difference& difference : differences)
    {
        const std::string name = difference.Allele.empty() ? difference.Field : "alleles";
        if (!names.ends_with(name))
            names += (names.empty() ? "" : ", ") + name;
    }
    return names;
}

/// "Repeat, Size and Size.Min are missing"
std::string LackOf(const PanelMarker& marker)
{
    std::string names;
    for (const PanelComplaint& flaw : marker.Flaws)
        names += (names.empty() ? "" : ", ") + (flaw.Column.empty() ? flaw.Problem : flaw.Column);
    return names + " missing";
}

class Planner
{
public:
    Planner(const std::vector<const PanelMarker*>& markers, const ImportChoice& choice,
            Store& store)
        : m_markers(markers), m_choice(choice), m_store(store), m_tags(markers, store)
    {}

    ImportPlan Plan(const PanelMarker* first, const LociProgress& progress)
    {
        ImportPlan plan;
        plan.DyesBefore = m_store.Dyes();
        m_dyes = m_choice.AddDyes ? WithDyesOf(m_markers, plan.DyesBefore) : plan.DyesBefore;
        plan.DyesAfter = m_dyes;
        for (const PanelMarker* marker : m_markers)
        {
            plan.Loci.push_back(PlanMarker(*marker));
            plan.Loci.back().Index = static_cast<std::size_t>(marker - first);
            RemarkOn(*marker, plan.Loci.back(), plan.Remarks);
            if (progress)
                progress(plan.Loci.size(), m_markers.size());
        }
        return plan;
    }

private:
    /// The dyes and behind them those whose colours the markers have, as far as there is room.
    static Dyes WithDyesOf(const std::vector<const PanelMarker*>& markers, const Dyes& before)
    {
        std::vector<Dye> all = before.All();
        for (const PanelMarker* marker : markers)
        {
            const KnownColor* color = FindColor(marker->Color);
            if (color == nullptr || !marker->Flaws.empty() || all.size() == MostDyes)
                continue;
            const Dye dye{std::string(color->Name), ""};
            if (std::ranges::find(all, dye.Color, &Dye::Color) == all.end())
                all.push_back(dye);
        }
        return Dyes(std::move(all));
    }

    static void RemarkOn(const PanelMarker& marker, const PlannedLocus& planned,
                         std::vector<PanelRemark>& remarks)
    {
        const std::string place = planned.Place();
        if (planned.IsLacking)
            remarks.push_back({RemarkKind::Lacking, place + ": " + planned.Obstacles.front()});
        if (planned.Fate == ImportFate::LeftOut)
            return;
        if (planned.Fate == ImportFate::New && planned.IsRenamed())
            remarks.push_back(
                {RemarkKind::Renamed, place + " is stored under the tag \"" + planned.Tag + "\""});
        if (marker.IsNominal && planned.Fate == ImportFate::New)
            remarks.push_back({RemarkKind::Nominal, place});
        for (const PanelAllele& allele : marker.Alleles)
        {
            if (allele.Size < allele.BinStart || allele.Size > allele.BinEnd)
                remarks.push_back({RemarkKind::SizeOutsideBin, place + ", allele " + allele.Name});
        }
    }

    PlannedLocus PlanMarker(const PanelMarker& marker)
    {
        PlannedLocus planned;
        planned.File = marker.File;
        planned.Line = marker.Line;
        planned.Marker = marker.Marker;
        planned.Alleles = AllelesOf(marker);
        planned.Fields.PrimerSet = marker.Panel;
        planned.Stored = m_tags.Find(marker, planned.Tag);
        if (!CheckFlaws(marker, planned))
        {
            planned.Fate = ImportFate::LeftOut;
            return planned;
        }

        LocusFields& fields = planned.Fields;
        if (planned.Stored)
            fields = *planned.Stored;
        else
            fields.LocusName = marker.Marker;
        ApplyMarker(marker, planned.Alleles, m_dyes, !planned.Stored, fields);
        fields.ProjectName = ProjectOf(fields);
        if (planned.Stored)
            Compare(marker, planned);

        CheckWhatFits(marker, planned);
        if (!planned.Obstacles.empty())
            planned.Fate = ImportFate::LeftOut;
        return planned;
    }

    /// Whether the marker could be read.
    static bool CheckFlaws(const PanelMarker& marker, PlannedLocus& planned)
    {
        planned.IsLacking =
            !marker.Flaws.empty() && std::ranges::all_of(marker.Flaws, &PanelComplaint::IsLack);
        if (planned.IsLacking)
            planned.Obstacles.push_back(LackOf(marker));
        else
        {
            for (PanelComplaint flaw : marker.Flaws)
            {
                // What the planned locus says itself needs no second time.
                if (flaw.IsShared)
                {
                    planned.Gap = flaw.Text();
                    continue;
                }
                if (flaw.File == planned.File)
                    flaw.File.clear();
                if (flaw.File.empty() && flaw.Column.empty() && flaw.Line == planned.Line)
                    flaw.Line = 0;
                planned.Obstacles.push_back(flaw.Text());
            }
        }
        return marker.Flaws.empty();
    }

    std::string ProjectOf(const LocusFields& fields)
    {
        std::string name = m_choice.Project.empty() ? fields.ProjectName : m_choice.Project;
        if (Trim(name).empty())
            name = defaultProject;
        const auto [known, isNew] = m_projects.try_emplace(name, name);
        if (isNew)
        {
            if (const auto project = m_store.FindProject(name))
                known->second = project->Name();
        }
        return known->second;
    }

    void CheckWhatFits(const PanelMarker& marker, PlannedLocus& planned)
    {
        CheckDye(marker, planned);
        CheckSizes(marker, planned);
        std::ranges::move(MisfitsOf(planned.Fields), std::back_inserter(planned.Obstacles));
        std::ranges::move(m_tags.Take(marker, planned.Tag), std::back_inserter(planned.Obstacles));
        if (planned.Fate == ImportFate::Changed && !m_choice.Update && planned.Obstacles.empty())
            planned.Obstacles.push_back("The store has a locus \"" + planned.Tag +
                                        "\" that differs in: " + NamesOf(planned.Differences) +
                                        ". Update it from the file, delete it or give it another "
                                        "tag");
    }

    /// Sizes that no instrument can show are mistakes. What this program has written comes back.
    static void CheckSizes(const PanelMarker& marker, PlannedLocus& planned)
    {
        constexpr double largest = 10'000;
        const auto isPast = [](double size) { return size < -largest || size > largest; };
        if (!marker.FieldCells.empty())
            return;
        for (const PanelAllele& allele : marker.Alleles)
        {
            if (isPast(allele.Size) || isPast(allele.BinStart) || isPast(allele.BinEnd))
                return planned.Obstacles.push_back("The allele " + QuotedCell(allele.Name) +
                                                   " has a size or a bin past 10000 nt");
        }
    }

    void CheckDye(const PanelMarker& marker, PlannedLocus& planned) const
    {
        if (m_dyes.OfColor(marker.Color))
            return;
        const std::string color = Trim(marker.Color);
        if (FindColor(color) == nullptr)
            planned.Obstacles.push_back("The colour " + QuotedCell(color) + " is none of " +
                                        ColorNames());
        else if (m_choice.AddDyes)
            planned.Obstacles.push_back("The colour " + color + " is none of the store's dyes, " +
                                        "and it has " + std::to_string(MostDyes) + " already");
        else
        {
            planned.Obstacles.push_back("The colour " + color + " is none of the store's dyes");
            planned.NeedsDye = true;
        }
    }

    static void Compare(const PanelMarker& marker, PlannedLocus& planned)
    {
        Locus& stored = *planned.Stored;
        const std::vector<AlleleFields> before = AllelesOf(stored);
        AlleleUpdate update = UpdateAlleles(before, planned.Alleles, marker);
        if (!update.Differences.empty() && marker.FieldCells.empty() && !marker.IsNominal &&
            FollowsAlleles(stored, before))
            FollowAlleles(planned.Fields, update.Alleles);
        for (const LocusField& field : LocusFieldTable)
        {
            const std::string was = FieldCell(stored, field);
            const std::string is = FieldCell(planned.Fields, field);
            if (was != is)
                planned.Differences.push_back({std::string(field.Name), "", was, is});
        }
        planned.Alleles = std::move(update.Alleles);
        std::ranges::move(update.Differences, std::back_inserter(planned.Differences));
        planned.Fate = planned.Differences.empty() ? ImportFate::Present : ImportFate::Changed;
    }

    const std::vector<const PanelMarker*>& m_markers;
    const ImportChoice& m_choice;
    Store& m_store;
    ImportTags m_tags;
    Dyes m_dyes; ///< With those that are added.
    std::map<std::string, std::string> m_projects;
};

} // namespace

ImportPlan PlanImport(const std::vector<PanelMarker>& markers, const ImportChoice& choice,
                      Store& store, const LociProgress& progress)
{
    const std::vector<const PanelMarker*> chosen = ChosenMarkers(markers, choice);
    return Planner(chosen, choice, store).Plan(markers.data(), progress);
}

} // namespace Tamrivo
