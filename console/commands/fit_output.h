#pragma once

#include "console/commands/output_format.h"
#include "contracts/locus.h"
#include "host/fit/ladder_fit.h"
#include "host/fit/marker_sizes.h"

#include <iosfwd>
#include <memory>
#include <span>
#include <string>

namespace Tamrivo
{

class ObservedReader;

/// A locus with what its observed sizes say.
struct FittedLocus
{
    std::shared_ptr<Tamrivo::Locus> Locus;
    std::string Marker; ///< `LookupKey` of its lines in the observed table.
    LadderFit Fit;
};

/// Prints what the fits say. In a table for programs there is no room for cautions.
void PrintFit(std::ostream& out, OutputFormat format, std::span<const FittedLocus> fitted);

/// Writes the observed table with tag, called allele and residual behind its columns, a line a
/// size, as it is read.
void WritePeaks(const std::string& path, ObservedReader& table, std::span<const FittedLocus> fitted,
                const LineProgress& progress);

} // namespace Tamrivo
