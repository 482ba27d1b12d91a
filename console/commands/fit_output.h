#pragma once

#include "console/commands/output_format.h"
#include "contracts/locus.h"
#include "host/fit/ladder_fit.h"
#include "host/fit/observed_sizes.h"

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace Tamrivo
{

/// A locus with what its observed sizes say.
struct FittedLocus
{
    std::shared_ptr<Tamrivo::Locus> Locus;
    std::vector<std::size_t> Lines; ///< Of the observed table.
    LadderFit Fit;
};

void PrintFit(std::ostream& out, OutputFormat format, std::span<const FittedLocus> fitted);

/// Writes the observed table with tag, called allele and residual behind its columns, a line a
/// size.
void WritePeaks(const std::string& path, const ObservedTable& table,
                std::span<const FittedLocus> fitted);

} // namespace Tamrivo
