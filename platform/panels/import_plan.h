#pragma once

#include "platform/panels/panel_table.h"
#include "platform/panels/progress.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Tamrivo
{

class Store;

/// What of a table comes in, and where to.
struct ImportChoice
{
    std::vector<std::string> Panels; ///< Names, case aside; empty: all.
    std::string Project;             ///< Empty: as the table says, else "Default".
};

/// What happens to a marker.
enum class ImportFate
{
    New,     ///< Becomes a locus.
    Present, ///< The store has this locus already, with all that the table states.
    LeftOut, ///< Can't come in.
};

/// A marker on its way to becoming a locus.
struct PlannedLocus
{
    ImportFate Fate = ImportFate::New;
    std::size_t Line = 0; ///< The marker's first line in the table.
    std::string Marker;
    std::string Tag;
    /// Why the marker is left out, a sentence each.
    std::vector<std::string> Obstacles;
    LocusFields Fields; ///< `ProjectID` is left to the import.
    std::vector<AlleleFields> Alleles;

    bool IsRenamed() const { return Tag != Marker; }
    /// "line 7: D3S1358 of Panel-17".
    std::string Place() const;
};

/// What an import would do, to be shown or carried out.
struct ImportPlan
{
    std::vector<PlannedLocus> Loci; ///< In the table's order.

    std::size_t Count(ImportFate fate) const;
    /// Alleles of the new loci.
    std::size_t NewAlleles() const;
};

/// Plans the import of the markers into the store, as it is now.
///
/// A locus gets the marker's range rounded outward, the dye of its colour, and the marker's name as
/// tag, unless the table states another. Where several of the markers have one name, or the store
/// has the name for a locus of another panel, the tag is `MarkerInPanel`.
///
/// Left out is what a locus can't hold, such as a fifth dye or a range past 999 nt, a tag that
/// comes twice, and a locus that the store has with other values: an import changes no stored
/// locus.
///
/// Raises `ErrorNumber::InvalidArgument` for a chosen panel that isn't among the markers, and
/// failures of the store.
ImportPlan PlanImport(const std::vector<PanelMarker>& markers, const ImportChoice& choice,
                      Store& store, const LociProgress& progress = {});

} // namespace Tamrivo
