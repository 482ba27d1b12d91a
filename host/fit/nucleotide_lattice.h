#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace Tamrivo
{

/// Sizes on a ladder of single nucleotides.
struct Lattice
{
    double Step = 0;                  ///< nt of size a nucleotide
    double Offset = 0;                ///< Size at place 0, nt.
    double Spread = 0;                ///< Standard deviation of the sizes about their places, nt.
    std::vector<std::int32_t> Places; ///< Of each size, nucleotides from place 0.

    double MeanPlace = 0;
    double MeanVariance = 0; ///< Of the size at `MeanPlace`.
    double StepVariance = 0;
    double Covariance = 0; ///< Of the two.

    double SizeAt(double place) const { return Offset + Step * place; }
    /// Standard error of `SizeAt`.
    double ErrorAt(double place) const;
    /// Standard error of `Step`.
    double StepError() const;
};

/// Places sizes on the ladder whose period is roughly known. Sizes are a mixture of normal
/// distributions of one spread whose means are the places; offset, step, spread and the shares of
/// the places are fitted together by expectation and maximisation (Dempster, Laird and Rubin 1977),
/// so that a size between two places counts for both. The errors are those of Louis (1982), larger
/// by what isn't known of the places. Place 0 is near the first size's.
/// @param sizes ascending
/// @param repeatLength nt
Lattice PlaceOnLattice(std::span<const double> sizes, double period, std::int32_t repeatLength);

} // namespace Tamrivo
