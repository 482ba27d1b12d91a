#pragma once

#include "contracts/allele.h"
#include "host/loci/dyes.h"
#include "host/loci/progress.h"
#include "host/panels/panel_format.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace Tamrivo
{

/// What is written of loci, and how.
struct ExportChoice
{
    PanelFormat Format = PanelFormat::PanelTable;
    /// Name of the kit; empty: that of the panel. Needed by a kit file of several panels.
    std::string Kit = {};
    std::vector<std::string> SizeStandards = {}; ///< For a kit file of OSIRIS, at least one.
    std::string ShortName = {}; ///< Of the one panel in a kit table; empty: the panel's name.
};

/// A locus on its way into a file of another program.
struct ExportedMarker
{
    std::shared_ptr<Locus> Source;
    std::string Panel;
    std::string Marker; ///< Name.
    std::string Color;  ///< Of its dye.
    std::int32_t Channel = 1;
    std::vector<const AlleleFields*> Alleles; ///< In their order; `Source` keeps them.

    /// The alleles that are in the ladder.
    std::vector<const AlleleFields*> Ladder() const;
};

/// What an export would write.
struct ExportPlan
{
    ExportChoice Choice;
    std::vector<std::shared_ptr<BusinessObject>> Loci; ///< All that were chosen.
    std::vector<ExportedMarker> Markers; ///< Those that the format can have, a panel together.
    Dyes OfStore;
    /// What the format can't carry of these loci, one line; empty: nothing.
    std::string Losses;

    /// Loci that are written.
    std::size_t Count() const;
};

/// Plans the export of loci, whose alleles are loaded.
///
/// Raises `ErrorNumber::InvalidArgument` for a choice that the format can't follow: a kit file
/// without size standards, or of several panels without a name; a short name for several panels, or
/// one that the programs would take for something else. Raises failures of the store.
ExportPlan PlanExport(std::span<const std::shared_ptr<BusinessObject>> loci,
                      const ExportChoice& choice, const Dyes& dyes,
                      const LociProgress& progress = {});

} // namespace Tamrivo
