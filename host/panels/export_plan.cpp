#include "host/panels/export_plan.h"

#include "core/error.h"
#include "core/text.h"
#include "host/loci/keys.h"
#include "host/panels/export_losses.h"
#include "host/panels/marker_name.h"
#include "host/panels/osiris/kit_writer.h"
#include "host/panels/panel_marker.h"
#include "host/store/bulk_alleles.h"

#include <algorithm>
#include <map>
#include <set>

namespace Tamrivo
{

namespace
{

[[noreturn]] void RefuseExport(const std::string& why)
{
    throw Failure(ErrorNumber::InvalidArgument, "Export", "Nothing was exported: " + why);
}

/// A name on one line.
std::string OneLine(const std::string& name)
{
    std::string line = name;
    std::ranges::replace_if(
        line, [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
    return Trim(line);
}

ExportedMarker MarkerFor(const std::shared_ptr<Locus>& locus, const Dyes& dyes)
{
    constexpr const char* panelOfNone = "Loci";
    ExportedMarker marker;
    marker.Source = locus;
    marker.Panel = OneLine(locus->PrimerSet);
    if (marker.Panel.empty())
        marker.Panel = panelOfNone;
    marker.Marker = OneLine(MarkerOf(*locus));
    marker.Color = dyes.ColorOf(locus->DyeIndex);
    marker.Channel = locus->DyeIndex + 1;
    for (const auto& member : locus->Alleles().Members())
        marker.Alleles.push_back(As<Allele>(member).get());
    return marker;
}

/// Puts the markers of a panel together, in the order in which the panels come up.
void GroupByPanel(std::vector<ExportedMarker>& markers)
{
    std::map<std::string, std::size_t> ranks;
    for (const ExportedMarker& marker : markers)
        ranks.try_emplace(LookupKey(marker.Panel), ranks.size());
    std::ranges::stable_sort(markers, {}, [&ranks](const ExportedMarker& marker) {
        return ranks.at(LookupKey(marker.Panel));
    });
}

std::size_t PanelCount(const std::vector<ExportedMarker>& markers)
{
    std::set<std::string> panels;
    for (const ExportedMarker& marker : markers)
        panels.insert(LookupKey(marker.Panel));
    return panels.size();
}

/// R takes a column of nothing but these for truth values or for missing ones.
bool IsWordOfR(const std::string& name)
{
    constexpr std::string_view words[] = {"T", "F", "TRUE", "FALSE", "NA"};
    return std::ranges::any_of(words,
                               [&](std::string_view word) { return EqualNoCase(name, word); });
}

void CheckKitTable(const ExportPlan& plan)
{
    if (!plan.Choice.ShortName.empty() && PanelCount(plan.Markers) > 1)
        RefuseExport(
            "there are several panels, and a short name is for one. Choose one with --panel, or "
            "leave the short name out");
    const std::string name = plan.Choice.ShortName.empty() && !plan.Markers.empty()
                                 ? plan.Markers.front().Panel
                                 : plan.Choice.ShortName;
    if (PanelCount(plan.Markers) == 1 && IsWordOfR(Trim(name)))
        RefuseExport("R would not read \"" + name +
                     "\" as the name of a panel. Give it another one "
                     "(--short-name)");
}

void CheckKitFile(const ExportPlan& plan)
{
    if (plan.Choice.SizeStandards.empty())
        RefuseExport(
            "a kit file needs the names of the size standards that it is for, as OSIRIS has "
            "them (--size-standard NAME)");
    if (plan.Choice.Kit.empty() && PanelCount(plan.Markers) > 1)
        RefuseExport(
            "a kit file has one kit, and there are several panels. Name the kit (--kit NAME) or "
            "choose a panel");
    for (const std::string& name : plan.Choice.SizeStandards)
    {
        if (Trim(name).empty() || !IsPlainXml(name))
            RefuseExport("\"" + name +
                         "\" can't be the name of a size standard: OSIRIS reads no &, < "
                         "and > in names");
    }
    const std::string kit = plan.Choice.Kit.empty() && !plan.Markers.empty()
                                ? plan.Markers.front().Panel
                                : plan.Choice.Kit;
    if (!IsPlainXml(kit))
        RefuseExport("\"" + kit +
                     "\" can't be the name of a kit: OSIRIS reads no &, < and > in names. "
                     "Name it otherwise (--kit NAME)");
}

} // namespace

std::vector<const AlleleFields*> ExportedMarker::Ladder() const
{
    std::vector<const AlleleFields*> ladder;
    std::ranges::copy_if(Alleles, std::back_inserter(ladder),
                         [](const AlleleFields* allele) { return allele->AlleleInt2 == 0; });
    return ladder;
}

std::size_t ExportPlan::Count() const
{
    return Choice.Format == PanelFormat::PanelTable ? Loci.size() : Markers.size();
}

ExportPlan PlanExport(std::span<const std::shared_ptr<BusinessObject>> loci,
                      const ExportChoice& choice, const Dyes& dyes, const LociProgress& progress)
{
    ExportPlan plan;
    plan.Choice = choice;
    plan.Loci.assign(loci.begin(), loci.end());
    plan.OfStore = dyes;
    if (choice.Format == PanelFormat::PanelTable)
        return plan;

    for (const auto& member : loci)
    {
        if (const std::size_t at = plan.Markers.size(); at % LociAtOnce == 0)
            LoadAlleles(
                LociWithoutAlleles(loci.subspan(at, std::min(LociAtOnce, loci.size() - at))));
        plan.Markers.push_back(MarkerFor(As<Locus>(member), dyes));
        if (progress)
            progress(plan.Markers.size(), loci.size());
    }
    GroupByPanel(plan.Markers);
    plan.Losses = LeaveOut(plan.Markers, choice.Format);
    if (choice.Format == PanelFormat::KitTable)
        CheckKitTable(plan);
    if (choice.Format == PanelFormat::OsirisKit)
        CheckKitFile(plan);
    if (plan.Markers.empty() && !loci.empty())
        RefuseExport("none of the loci fits a " + std::string(NameOf(choice.Format).Title) + ". " +
                     plan.Losses);
    return plan;
}

} // namespace Tamrivo
