#pragma once

#include "host/loci/dyes.h"
#include "host/loci/progress.h"
#include "host/panels/allele_update.h"
#include "host/panels/panel_marker.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tamrivo
{

class Locus;
class Store;

/// What of the files comes in, and where to.
struct ImportChoice
{
    /// Names of panels, their short or full ones, case aside; empty: all.
    std::vector<std::string> Panels = {};
    std::string Project = {}; ///< Empty: as the file says, else "Default".
    bool AddDyes = false;     ///< The store gets the dyes that the markers need.
    bool Update = false;      ///< Loci that differ are brought to what the file says.
    /// Positions of the markers that were chosen one by one, ascending; none: those of the panels.
    std::optional<std::vector<std::size_t>> Markers = {};
};

/// Whether a panel of the marker is meant by one of the names.
bool IsOfPanels(const PanelMarker& marker, const std::vector<std::string>& panels);

/// What happens to a marker.
enum class ImportFate
{
    New,     ///< Becomes a locus.
    Present, ///< The store has this locus already, with all that the file states.
    Changed, ///< The store's locus is brought to what the file states.
    LeftOut, ///< Can't come in.
};

/// "new", "same", "changed" or "refused".
std::string_view NameOf(ImportFate fate);

/// A marker on its way to becoming a locus.
struct PlannedLocus
{
    ImportFate Fate = ImportFate::New;
    std::size_t Index = 0; ///< Of the marker among those that the plan was made for.
    std::string File;      ///< The marker's file; empty: there is only one.
    std::size_t Line = 0;  ///< The marker's first line in it.
    std::string Marker;
    std::string Tag;
    /// Why the marker is left out, a sentence each.
    std::vector<std::string> Obstacles;
    /// What a file lacks that this marker and others need, with the place; empty: nothing. It
    /// leaves the marker out as well.
    std::string Gap;
    /// Left out because its file says too little, which keeps nothing else from coming in.
    bool IsLacking = false;
    /// Left out for want of a dye that the store could have.
    bool NeedsDye = false;
    /// The locus that the store has, as it was read; none for a new one.
    std::shared_ptr<Locus> Stored;
    /// What the stored locus has otherwise.
    std::vector<Difference> Differences;
    LocusFields Fields; ///< `ProjectID` is left to the import.
    std::vector<AlleleFields> Alleles;

    bool IsRenamed() const { return Tag != Marker; }
    /// "line 7: D3S1358 of Panel-17".
    std::string Place() const;
    /// Why the marker is left out, each with its place; a gap reads the same for all that it
    /// leaves out.
    std::vector<std::string> Reasons() const;
};

/// What an import would do, to be shown or carried out.
struct ImportPlan
{
    std::vector<PlannedLocus> Loci; ///< In the files' order.
    std::vector<PanelRemark> Remarks;
    Dyes DyesBefore; ///< Those of the store when the plan was made.
    Dyes DyesAfter;  ///< With those that are added.

    std::size_t Count(ImportFate fate) const;
    /// Markers that are left out although their files say enough.
    std::size_t Refused() const;
    /// Alleles of the new loci.
    std::size_t NewAlleles() const;
    /// Whether carrying it out would do anything.
    bool IsAny() const { return Count(ImportFate::New) + Count(ImportFate::Changed) > 0; }
};

/// Plans the import of the markers into the store, as it is now.
///
/// A locus gets the marker's range rounded outward, the dye of its colour, and the marker's name as
/// tag, unless the file states another. Where several of the markers have one name, or the store
/// has the name for a locus of another panel, the tag is `MarkerInPanel`.
///
/// Left out is what a locus can't hold, such as a range past 999 nt, a dye that the store doesn't
/// have, a tag that comes twice, and, unless the choice is to update, a locus that the store has
/// with other values.
///
/// Raises `ErrorNumber::InvalidArgument` for a chosen panel that isn't among the markers, and
/// failures of the store.
ImportPlan PlanImport(const std::vector<PanelMarker>& markers, const ImportChoice& choice,
                      Store& store, const LociProgress& progress = {});

} // namespace Tamrivo
