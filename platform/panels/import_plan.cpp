#include "platform/panels/import_plan.h"

#include "core/numbers.h"
#include "core/text.h"
#include "platform/panels/cells.h"
#include "platform/panels/dyes.h"
#include "platform/panels/locus_columns.h"
#include "platform/store/keys.h"
#include "platform/store/store.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <unordered_set>

namespace Tamrivo
{

namespace
{

constexpr std::string_view defaultProject = "Default";

/// The nearest 32-bit integer to a whole number, so that what is far out of range stays so.
std::int32_t Saturated(double whole)
{
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<double>(whole, Limits::min(), Limits::max()));
}

const AlleleFields* ShortestAllele(const PanelMarker& marker)
{
    const auto shortest = std::ranges::min_element(marker.Alleles, {}, &AlleleFields::AlleleReal1);
    return shortest == marker.Alleles.end() ? nullptr : &*shortest;
}

/// Repeats in the shortest allele: from its name, else from its size, else 1.
double RepeatsIn(const AlleleFields& shortest, const PanelMarker& marker)
{
    double repeats = shortest.AlleleReal4;
    if (repeats == 0 && marker.Offset && marker.RepeatLength > 0)
        repeats = std::round((shortest.AlleleReal1 - *marker.Offset) / marker.RepeatLength);
    return std::clamp(repeats, 1.0, 1000.0);
}

/// Writes all that the table states about the marker; a colour that is no dye changes nothing.
void ApplyMarker(const PanelMarker& marker, LocusFields& fields)
{
    fields.DyeIndex = DyeOfColor(marker.Color).value_or(fields.DyeIndex);
    fields.FragStart = Saturated(std::floor(marker.RangeStart));
    fields.FragEnd = Saturated(std::ceil(marker.RangeEnd));
    fields.RepeatLength = marker.RepeatLength;
    fields.PrimerSet = marker.Panel;
    if (const AlleleFields* shortest = ShortestAllele(marker))
    {
        fields.ShortestAlleleSize = std::clamp(Saturated(std::round(shortest->AlleleReal1)),
                                               fields.FragStart, fields.FragEnd);
        fields.RepeatsInShortestAllele = DoubleText(RepeatsIn(*shortest, marker));
    }
    for (const auto& [field, cell] : marker.FieldCells)
        SetField(fields, *field, cell);
}

/// Names of the fields in which the two differ, and "alleles".
std::string Differences(const LocusFields& left, const LocusFields& right, bool sameAlleles)
{
    std::string names;
    const auto add = [&names](std::string_view name) {
        names += (names.empty() ? "" : ", ") + std::string(name);
    };
    for (const LocusField& field : LocusFieldTable)
    {
        if (FieldCell(left, field) != FieldCell(right, field))
            add(field.Name);
    }
    if (!sameAlleles)
        add("alleles");
    return names;
}

bool IsOf(const std::string& panel, const std::shared_ptr<Locus>& locus)
{
    return locus && EqualNoCase(locus->PrimerSet, panel);
}

bool HasAlleles(Locus& locus, const std::vector<AlleleFields>& alleles)
{
    return std::ranges::equal(locus.Alleles().Members(), alleles,
                              [](const auto& member, const AlleleFields& fields) {
                                  return *As<Allele>(member) == fields;
                              });
}

class Planner
{
public:
    Planner(const ImportChoice& choice, Store& store)
        : m_choice(choice), m_store(store), m_storedKeys(store.TagKeys())
    {}

    ImportPlan Plan(const std::vector<PanelMarker>& markers, const LociProgress& progress)
    {
        RequirePanels(markers);
        std::vector<const PanelMarker*> chosen;
        for (const PanelMarker& marker : markers)
        {
            if (!IsChosen(marker))
                continue;
            chosen.push_back(&marker);
            if (marker.LocusTag.empty())
                ++m_markersNamed[LookupKey(marker.Marker)];
        }
        ImportPlan plan;
        for (const PanelMarker* marker : chosen)
        {
            plan.Loci.push_back(PlanMarker(*marker));
            if (progress)
                progress(plan.Loci.size(), chosen.size());
        }
        return plan;
    }

private:
    bool IsChosen(const PanelMarker& marker) const
    {
        return m_choice.Panels.empty() ||
               std::ranges::any_of(m_choice.Panels, [&marker](const std::string& panel) {
                   return EqualNoCase(Trim(panel), Trim(marker.Panel));
               });
    }

    void RequirePanels(const std::vector<PanelMarker>& markers) const
    {
        std::map<std::string, std::string> panels;
        for (const PanelMarker& marker : markers)
            panels.emplace(FoldCase(Trim(marker.Panel)), marker.Panel);
        for (const std::string& panel : m_choice.Panels)
        {
            if (panels.contains(FoldCase(Trim(panel))))
                continue;
            std::string names;
            for (const auto& [key, name] : panels)
                names += (names.empty() ? "" : ", ") + name;
            throw Failure(ErrorNumber::InvalidArgument, "PlanImport",
                          "The table has no panel \"" + panel + "\"; it has " +
                              (names.empty() ? "none" : names));
        }
    }

    PlannedLocus PlanMarker(const PanelMarker& marker)
    {
        PlannedLocus planned;
        planned.Line = marker.Line;
        planned.Marker = marker.Marker;
        planned.Alleles = marker.Alleles;
        const std::shared_ptr<Locus> stored = Find(marker, planned.Tag);

        LocusFields& fields = planned.Fields;
        if (stored)
            fields = *stored;
        else
            fields.LocusName = marker.Marker;
        ApplyMarker(marker, fields);
        fields.ProjectName = ProjectOf(fields);

        CheckWhatFits(marker, planned);
        if (stored && planned.Obstacles.empty())
            Compare(*stored, planned);
        if (!planned.Obstacles.empty())
            planned.Fate = ImportFate::LeftOut;
        return planned;
    }

    /// The stored locus with the tag. Few of the tags of a table are stored, as a rule.
    std::shared_ptr<Locus> Stored(const std::string& tag)
    {
        return m_storedKeys.contains(LookupKey(tag)) ? m_store.FindLocus(tag) : nullptr;
    }

    /// Chooses the tag, and gives the locus that the store has under it. A locus of the marker's
    /// own panel is found again under either tag, with whatever else it came in.
    std::shared_ptr<Locus> Find(const PanelMarker& marker, std::string& tag)
    {
        tag = marker.LocusTag.empty() ? marker.Marker : marker.LocusTag;
        auto stored = Stored(tag);
        if (!marker.LocusTag.empty() || marker.Panel.empty() || IsOf(marker.Panel, stored))
            return stored;
        const std::string tagInPanel = MarkerInPanel(marker.Marker, marker.Panel);
        auto storedInPanel = Stored(tagInPanel);
        const bool isFree = !stored && m_markersNamed[LookupKey(marker.Marker)] == 1;
        if (isFree && !IsOf(marker.Panel, storedInPanel))
            return nullptr;
        tag = tagInPanel;
        return storedInPanel;
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
        if (!DyeOfColor(marker.Color))
            planned.Obstacles.push_back("The colour " + Trim(marker.Color) +
                                        " is none of the four dyes blue, green, yellow and red");
        std::ranges::move(MisfitsOf(planned.Fields), std::back_inserter(planned.Obstacles));
        if (CharacterCount(planned.Tag) > MaxTagLength)
            planned.Obstacles.push_back("The tag \"" + planned.Tag + "\" is longer than " +
                                        std::to_string(MaxTagLength) + " characters");
        const auto [earlier, isFirst] = m_lineOfTag.emplace(LookupKey(planned.Tag), marker.Line);
        if (!isFirst)
            planned.Obstacles.push_back("The tag \"" + planned.Tag + "\" comes from line " +
                                        std::to_string(earlier->second) + " already");
    }

    static void Compare(Locus& stored, PlannedLocus& planned)
    {
        const std::string differences =
            Differences(stored, planned.Fields, HasAlleles(stored, planned.Alleles));
        if (differences.empty())
            planned.Fate = ImportFate::Present;
        else
            planned.Obstacles.push_back("The store has a locus \"" + planned.Tag +
                                        "\" that differs in: " + differences +
                                        ". Delete it or give it another tag first");
    }

    const ImportChoice& m_choice;
    Store& m_store;
    std::unordered_set<std::string> m_storedKeys;
    std::map<std::string, std::size_t> m_markersNamed;
    std::map<std::string, std::size_t> m_lineOfTag;
    std::map<std::string, std::string> m_projects;
};

} // namespace

std::string PlannedLocus::Place() const
{
    return "line " + std::to_string(Line) + ": " + Marker +
           (Fields.PrimerSet.empty() ? "" : " of " + Fields.PrimerSet);
}

std::size_t ImportPlan::Count(ImportFate fate) const
{
    return static_cast<std::size_t>(std::ranges::count(Loci, fate, &PlannedLocus::Fate));
}

std::size_t ImportPlan::NewAlleles() const
{
    std::size_t count = 0;
    for (const PlannedLocus& locus : Loci)
        count += locus.Fate == ImportFate::New ? locus.Alleles.size() : 0;
    return count;
}

ImportPlan PlanImport(const std::vector<PanelMarker>& markers, const ImportChoice& choice,
                      Store& store, const LociProgress& progress)
{
    return Planner(choice, store).Plan(markers, progress);
}

} // namespace Tamrivo
