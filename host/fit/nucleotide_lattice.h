#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace Tamrivo
{

/// Sizes on a ladder of single nucleotides.
struct Lattice
{
    double Step = 0;      ///< nt of size a nucleotide
    double Offset = 0;    ///< Size at place 0, nt.
    double StepError = 0; ///< Standard error.
    double Spread = 0;    ///< Standard deviation of the sizes about their places, nt.
    double MeanPlace = 0;
    std::vector<std::int32_t> Places; ///< Of each size, nucleotides from place 0.

    double SizeAt(double place) const { return Offset + Step * place; }
    /// Standard error of `SizeAt`.
    double ErrorAt(double place) const;
};

/// Places sizes on the ladder whose period is roughly known. Places that few sizes have give them
/// up to a neighbour that many have, as far as the spread explains it: a mixture of normal
/// distributions of one spread, fitted by classification (Celeux and Govaert 1992) and least
/// squares. Place 0 is the first size's.
/// @param sizes ascending
/// @param repeatLength nt; whole repeats from the commonest places are likelier than others
Lattice PlaceOnLattice(std::span<const double> sizes, double period, std::int32_t repeatLength);

} // namespace Tamrivo
