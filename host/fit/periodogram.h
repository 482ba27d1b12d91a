#pragma once

#include <span>

namespace Tamrivo
{

/// How well sizes stand at equal distances from each other.
struct Periodicity
{
    double Period = 0; ///< nt; the best between the bounds.
    double Power = 0;  ///< Its Z-squared statistic.
    /// Of random sizes, how many have a period of this power somewhere between the bounds.
    double Chance = 1;
    double RandomPower = 0; ///< What half of all random sizes exceed.
};

/// Searches a period between the bounds, nt, by the Z-squared statistic with two harmonics
/// (Buccheri et al. 1983): with n sizes of phases p, 2/n times the sum over h = 1, 2 of
/// |sum of exp(i h p)| squared. For random sizes it follows the chi-squared distribution with four
/// degrees of freedom; a search over m independent periods has the m-fold chance (Horne and
/// Baliunas 1986). The second harmonic sees loci that half of their alleles are half a repeat off.
/// @param sizes ascending, at least two
Periodicity FindPeriod(std::span<const double> sizes, double shortest, double longest);

} // namespace Tamrivo
